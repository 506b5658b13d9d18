#pragma once

#include "state/tray_icon_data.h"

#include <QString>

namespace quarvel {

/// The values that the windows share, for the life of the process; they survive the unloading of windows.
struct ProcessState {
    /// The name of the airport opened in the main window, as in its name box. Written when an airport is
    /// opened; read by the chart viewer to find the family folders and for its caption.
    QString CurrentAirport;
    /// The ICAO code of that airport. Written when its record is read or saved, and put back when an opening
    /// fails; read for the presenter text's path.
    QString CurrentIcao;
    /// The family folder last chosen in the viewer, ending in a separator. Written by the viewer; read
    /// by the companion window.
    QString FamilyFolder;
    /// The file name of the chart last chosen in the viewer. Written by the viewer; read by the
    /// companion window.
    QString ChartFile;
    /// What the companion window shows: 1 the chosen chart, every other value the airport's picture. Written
    /// and read by the companion window.
    qint16 CompanionMode = 0;
    /// The companion window's icon in the notification area. Written when that window loads; read by every
    /// later call for the icon.
    quarvel::TrayIconData TrayIconData;
    /// The current language's name, empty at start. Written by the language list, by a selection and by the
    /// first lookup while it is empty; read by every lookup and by the opening of an airport.
    QString MLSCurrentLanguage;
};

} // namespace quarvel
