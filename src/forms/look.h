#pragma once

#include <QColor>
#include <QFont>
#include <QString>

class QApplication;

namespace quarvel {

enum class Face { Arial, TimesNewRoman };
enum class Weight { Normal, Bold };

/// How a control's text is set and coloured. A colour that is not valid leaves the toolkit's own.
struct Look {
    Face face = Face::Arial;
    double points = 8.25;
    Weight weight = Weight::Normal;
    QColor text{};
    QColor background{};
};

/// The colours that the windows share.
namespace colour {
inline constexpr QColor window{128, 128, 255};
inline constexpr QColor title{64, 64, 160}; ///< the title bar of an active window
inline constexpr QColor face{232, 232, 244};
inline constexpr QColor panel{224, 224, 224};
inline constexpr QColor results{128, 64, 64};
inline constexpr QColor ink{24, 26, 64};
inline constexpr QColor paper{250, 250, 252};
inline constexpr QColor mark{58, 66, 160};    ///< what is chosen, held or has the focus
inline constexpr QColor draft{255, 236, 150}; ///< what was typed and is not saved
} // namespace colour

[[nodiscard]] QFont fontOf(const Look& look);

/// Finds the files of the faces that the windows show at their start, and those that stand in for letters
/// that they lack. The toolkit keeps what was found for all threads, and this may be any.
void findFaces();

/// Sets the program's own style and colours, so that every desktop shows the windows as they were drawn.
void applyProgramLook(QApplication& application);

/// Gives the windows the program's icon, once. It waits for the first window to be active, which is when a
/// window manager is there to show it and when the window itself has been painted.
void showProgramIcon();

} // namespace quarvel
