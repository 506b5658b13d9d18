#include "shell/frmMain_controls.h"

#include "archive/record.h"

#include <QCursor>
#include <array>

#include "forms/compiled_pictures.h"

namespace quarvel {
namespace {

constexpr double entryHeight = 405;

/// A column of fields: where it stands and how wide it is, in twips.
struct Column {
    double left;
    double width;
};

Look entryOf(double points) {
    Look look = frmMainControls::entryLook;
    look.points = points;
    return look;
}

void addEntry(frmMainControls& all, Container& container, int position, const Place& place, Shown shown,
              double points = frmMainControls::entryLook.points) {
    TextBox& field = all.txtRwy.add(
        container,
        {.name = "txtRwy", .index = position, .place = place, .shown = shown, .look = entryOf(points)});
    field.setLongestTyped(longestTyped(position));
    field.setEditing(Editing::Locked);
}

/// The pointer over the fields that take typed text.
void setEntryCursor(frmMainControls& all) {
    const QCursor cursor(compiledPicture("cursor"), 9, 16);
    all.txtNomeAeroporto.setCursor(cursor);
    all.txtRwy.forEach([&](int /*index*/, TextBox& field) { field.setCursor(cursor); });
}

/// Name box, ICAO code, the rest of the general data, the navigation aids, the runway rows; then the
/// commands.
void setTabOrder(frmMainControls& all) {
    std::vector<QWidget*> order = {&all.txtNomeAeroporto.widget()};
    for (const int position : {IcaoCode, TransitionAltitude, Longitude, Latitude, Elevation})
        order.push_back(&all.txtRwy[position].widget());
    for (int position = VorIdent; position <= NdbFrequency; ++position)
        order.push_back(&all.txtRwy[position].widget());
    for (int position = FirstRunwayRow; position < VorIdent; ++position)
        order.push_back(&all.txtRwy[position].widget());
    for (const WidgetControl* control :
         {static_cast<WidgetControl*>(&all.cmdElabora), static_cast<WidgetControl*>(&all.lstWords),
          static_cast<WidgetControl*>(&all.ImgLingua[0]), static_cast<WidgetControl*>(&all.ImgLingua[1]),
          static_cast<WidgetControl*>(&all.cmdSave), static_cast<WidgetControl*>(&all.cmdReset),
          static_cast<WidgetControl*>(&all.cmdGrafica), static_cast<WidgetControl*>(&all.cmdStampa),
          static_cast<WidgetControl*>(&all.cmdAzzera), static_cast<WidgetControl*>(&all.cmdInfo),
          static_cast<WidgetControl*>(&all.cmdEsci), static_cast<WidgetControl*>(&all.cmdEsciMail),
          static_cast<WidgetControl*>(&all.TxtFile)})
        order.push_back(&control->widget());
    for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

} // namespace

frmMainControls::frmMainControls(Container& window) : form(window) {
    mnuLanguage.add(form, {.name = "mnuLanguage", .index = 0, .caption = u"mnuLanguage 0"},
                    mnuLanguages.menu());
    Image1.forEach([](int /*index*/, Image& decoration) { decoration.sendToBack(); });
    fraMail.bringToFront();
    ImgLingua.forEach([](int /*index*/, Image& flag) { flag.makeCommand(); });
    setEntryCursor(*this);
    setTabOrder(*this);
}

void frmMainControls::showInformation() {
    fraMail.setShown(Shown::Yes);
    // A link takes the focus from when it is first seen, and has no place among the others before.
    QWidget::setTabOrder(&cmdEsci.widget(), &Label15.widget());
    QWidget::setTabOrder(&Label15.widget(), &cmdEsciMail.widget());
}

frmMainControls::NavigationAids::NavigationAids(frmMainControls& all) {
    constexpr std::array<Column, 4> columns = {{{240, 855}, {1320, 1095}, {2640, 855}, {3720, 1095}}};
    int position = VorIdent;
    for (const Column& column : columns)
        addEntry(all, all.Frame4, position++, {column.left, 840, column.width, entryHeight}, Shown::Yes);
}

frmMainControls::RunwayGrid::RunwayGrid(frmMainControls& all) {
    constexpr std::array<Column, valuesPerRunwayRow> columns = {
        {{240, 615}, {1200, 975}, {2400, 855}, {3360, 1095}, {4560, 735}}};
    int position = FirstRunwayRow;
    for (int row = 0; row < runwayRows; ++row)
        for (const Column& column : columns)
            addEntry(all, all.Frame4, position++,
                     {column.left, 1920.0 + 600.0 * row, column.width, entryHeight}, Shown::Yes);
}

frmMainControls::Flags::Flags(frmMainControls& all) {
    all.ImgLingua.add(all.Frame2, {.name = "ImgLingua",
                                   .index = 0,
                                   .place = {150, 480, 825, 555},
                                   .toolTip = u"Clicca per la lingua Inglese",
                                   .picture = "flag_0"});
    all.ImgLingua.add(all.Frame2, {.name = "ImgLingua",
                                   .index = 1,
                                   .place = {1080, 480, 825, 555},
                                   .toolTip = u"Clicca per la lingua Italiana",
                                   .picture = "flag_1"});
}

frmMainControls::GeneralData::GeneralData(frmMainControls& all) {
    struct Field {
        int position;
        Column column;
        double points;
    };
    constexpr std::array<Field, 5> fields = {{{IcaoCode, {0, 855}, 14.25},
                                              {TransitionAltitude, {960, 855}, 12},
                                              {Longitude, {1920, 855}, 8.25},
                                              {Latitude, {2880, 855}, 8.25},
                                              {Elevation, {3840, 735}, 9.75}}};
    for (const Field& field : fields)
        addEntry(all, all.Frame1, field.position, {field.column.left, 1680, field.column.width, entryHeight},
                 Shown::No, field.points);
}

frmMainControls::Decorations::Decorations(frmMainControls& all) {
    struct Decoration {
        Place place;
        const char* picture;
    };
    constexpr std::array<Decoration, 9> pictures = {{{{0, 2280, 5370, 6615}, "Image1_0"},
                                                     {{5400, 0, 4890, 2775}, "Image1_1"},
                                                     {{5400, 4200, 2130, 1575}, "Image1_2"},
                                                     {{7440, 2760, 2850, 1455}, "Image1_3"},
                                                     {{7440, 7440, 2850, 1455}, "Image1_4"},
                                                     {{7440, 4200, 2850, 1575}, "Image1_5"},
                                                     {{5400, 5760, 2085, 1695}, "Image1_6"},
                                                     {{7440, 5760, 2850, 1695}, "Image1_7"},
                                                     {{5400, 7440, 2010, 1455}, "Image1_8"}}};
    int index = 0;
    for (const Decoration& decoration : pictures)
        all.Image1.add(
            all.form,
            {.name = "Image1", .index = index++, .place = decoration.place, .picture = decoration.picture});
}

} // namespace quarvel
