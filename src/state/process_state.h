#pragma once

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
    /// The family folder last chosen in the viewer, ending in a separator. Written by the viewer; for the
    /// companion window.
    QString FamilyFolder;
    /// The file name of the chart last chosen in the viewer. Written by the viewer; for the companion window.
    QString ChartFile;
    /// The current language's name, empty at start. Written by the language list, by a selection and by the
    /// first lookup while it is empty; read by every lookup and by the opening of an airport.
    QString MLSCurrentLanguage;
};

} // namespace quarvel
