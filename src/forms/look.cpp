#include "forms/look.h"

#include "forms/compiled_pictures.h"
#include "forms/style.h"

#include <QApplication>
#include <QFontMetrics>
#include <QIcon>
#include <QPalette>
#include <utility>

using namespace Qt::StringLiterals;

namespace quarvel {

QFont fontOf(const Look& look) {
    QFont font(look.face == Face::Arial ? u"Arial"_s : u"Times New Roman"_s);
    font.setPointSizeF(look.points);
    font.setBold(look.weight == Weight::Bold);
    return font;
}

void findFaces() {
    for (const Look& look :
         {Look{}, Look{.weight = Weight::Bold}, Look{Face::TimesNewRoman, 14.25, Weight::Bold}})
        static_cast<void>(QFontMetrics(fontOf(look)).height());
}

void applyProgramLook(QApplication& application) {
    QApplication::setStyle(new ProgramStyle);
    QPalette palette(colour::face, colour::face);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        palette.setColor(role, colour::ink);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        palette.setColor(QPalette::Disabled, role, QColor(100, 102, 130));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, colour::mark);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(255, 251, 224));
    palette.setColor(QPalette::ToolTipText, colour::ink);
    QApplication::setPalette(palette);
    application.setFont(fontOf({}));
}

void showProgramIcon() {
    static bool shown = false;
    if (std::exchange(shown, true)) return;
    QIcon icon;
    for (const char* size :
         {"quarvel-16", "quarvel-22", "quarvel-24", "quarvel-32", "quarvel-48", "quarvel-128"})
        icon.addPixmap(compiledPicture(size));
    QApplication::setWindowIcon(icon);
}

} // namespace quarvel
