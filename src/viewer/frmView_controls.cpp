#include "viewer/frmView_controls.h"

#include <array>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

constexpr int longestNote = 15000;

} // namespace

frmViewControls::frmViewControls(Container& window) : form(window) {
    for (MultiLineTextBox* notes : {&Text1, &Text2, &Text3}) {
        notes->setLongestTyped(longestNote);
        notes->setEditing(Editing::Locked);
    }
    List1.leaveToWindow(u"+-="_s);
    List1.setMark(Mark::StaysOnChosen);
    // From top to bottom, as the window reads.
    const std::array<const WidgetControl*, 16> order = {
        &Option1[0], &Option1[1], &Option1[2], &List1,    &Text2,    &Text1,    &Text3,    &Command2,
        &Command1,   &cmdStampa,  &cmdSave,    &Command3, &Command4, &Picture1, &HScroll1, &VScroll1};
    for (std::size_t i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(&order[i - 1]->widget(), &order[i]->widget());
}

frmViewControls::Options::Options(frmViewControls& all) {
    struct Option {
        double left;
        double width;
        const char16_t* caption;
    };
    constexpr std::array<Option, 3> families = {
        {{240, 1100, u"SID"}, {1440, 1220, u"STAR"}, {2760, 2100, u"APPROACH"}}};
    int index = 0;
    for (const Option& option : families)
        all.Option1.add(all.Frame2, {.name = "Option1",
                                     .index = index++,
                                     .place = {option.left, 480, option.width, 300},
                                     .caption = option.caption,
                                     .look = bold});
}

} // namespace quarvel
