#include "companion/frmFS9.h"
#include "files/lookup.h"
#include "text/strings.h"

#include <utility>

namespace quarvel {

Result<QString> frmFS9::picturePath() const {
    if (state_.CompanionMode == showsChart) return resolvePath(state_.FamilyFolder, state_.ChartFile);
    return paths_.picture(state_.CurrentAirport, state_.CurrentIcao);
}

frmFS9::Loaded frmFS9::LoadCompanionPicture() {
    const bool isChart = state_.CompanionMode == showsChart;
    const Result<Picture> picture = picturePath().then(Picture::read);
    if (!picture) {
        tellOnceShown(isChart ? Task::ReadChart : Task::ReadAirportPicture, picture.failure());
        return Loaded::No;
    }
    c->Image2.setPicture(picture.value());
    c->Image2.setPicture({});
    if (chart_->load(picture.value()) == ChartShown::TooLarge) {
        tellOnceShown(Task::ShowChart);
        return Loaded::No;
    }
    // A layout recorded without a picture would scale every later one to the size of none.
    if (!std::exchange(hasPicture_, true)) Resizer->recordAnew(c->Image1);
    if (const auto& shortfall = picture.value().shortfall())
        tellOnceShown(isChart ? Task::ShowChartInPart : Task::ShowAirportPictureInPart, shortfall);
    c->Image1.setSpokenName(isChart ? StripExtension(state_.ChartFile) : state_.CurrentAirport);
    return Loaded::Yes;
}

void frmFS9::tellOnceShown(Task task, const std::optional<Failure>& failure) {
    // Every loading ends with the window on the screen, but not before its handler has ended.
    queueMessage([this, task, failure] {
        if (failure)
            prompts_.tell(*this, task, *failure);
        else
            prompts_.tell(*this, task);
    });
}

void frmFS9::clearImages() {
    c->Image1.setPicture({});
    c->Image2.setPicture({});
}

void frmFS9::beepIf(ZoomOutcome outcome) {
    if (outcome == ZoomOutcome::Refused) services_.beeper.beep();
}

void frmFS9::Image1_MouseDown(int button, float x, float y) { beepIf(chart_->mouseDown(button, x, y)); }

void frmFS9::Picture1_WheelTurned(const WheelTurn& turn) { beepIf(chart_->wheelTurned(turn)); }

void frmFS9::Picture1_Dragged(Drag part, QPointF pointer) {
    if (chart_) chart_->dragged(part, pointer); // a drag may end with the window
}

void frmFS9::Form_KeyDown(KeyDown& key) {
    if (chart_) beepIf(chart_->keyDown(key));
}

void frmFS9::HScroll1_Scroll() { chart_->horizontalMoved(); }

void frmFS9::HScroll1_Change() { HScroll1_Scroll(); }

void frmFS9::VScroll1_Scroll() { chart_->verticalMoved(); }

void frmFS9::VScroll1_Change() { VScroll1_Scroll(); }

} // namespace quarvel
