#include "presenter/airport_presenter.h"

#include "files/whole_file.h"
#include "presenter/core/presentation.h"
#include "text/decoding.h"

namespace quarvel {
namespace {

constexpr qint64 largestTextBytes = qint64{16} * 1024 * 1024;

} // namespace

void AirportPresenter::LoadTextFile(const QString& path, HiddenTextBox& box) {
    if (const Result<QByteArray> file = readWholeFile(path, largestTextBytes))
        box.setText(decodeText(file.value()));
}

void AirportPresenter::PresentAirport(const HiddenTextBox& box) {
    presentText(Agent, Genie, box.text());
    if (OwnCharacter* character = Agent.own()) character->stage().standBeside(*box.widget().window());
}

} // namespace quarvel
