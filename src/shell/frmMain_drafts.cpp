#include "prompts/own_messages.h"
#include "shell/frmMain.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

/// A draft of an airport is the list of its values, by their positions.
QString draftOf(const QStringList& values) {
    return QString::fromUtf8(
        QJsonDocument(QJsonArray::fromStringList(values)).toJson(QJsonDocument::Compact));
}

QStringList valuesIn(const QString& draft) {
    QStringList values;
    for (const QJsonValue value : QJsonDocument::fromJson(draft.toUtf8()).array())
        values.append(value.toString());
    return values;
}

} // namespace

QString frmMain::typedFields() const {
    QStringList values;
    c->txtRwy.forEach([&values](int /*index*/, const TextBox& field) { values.append(field.text()); });
    return draftOf(values);
}

QString frmMain::noFields() { return draftOf(QStringList(recordSize)); }

void frmMain::beginDraft(const QString& airport, const QString& saved) {
    newAirport_.begin(draftName(airport, u"Aeroporto"_s, airport), saved);
    showOffer();
}

void frmMain::beginNewDraft(const QString& airport) {
    // What was typed under another name is not undone here.
    c->txtRwy.forEach([](int /*index*/, TextBox& field) { field.setText(field.text()); });
    newAirport_.beginOver(draftName(airport, u"Aeroporto"_s, airport), noFields(), typedFields());
    showOffer();
}

void frmMain::endDraft() {
    newAirport_.end();
    showOffer();
}

void frmMain::txtRwy_Edited() {
    newAirport_.typed(typedFields());
    showOffer();
}

void frmMain::txtRwy_OfferTaken() {
    const std::optional<QString> draft = newAirport_.offer();
    if (!draft) return;
    newAirport_.taken();
    const QStringList values = valuesIn(*draft);
    c->txtRwy.forEach([&values](int index, TextBox& field) { field.setText(values.value(index)); });
    showOffer();
}

void frmMain::txtRwy_OfferRefused() {
    newAirport_.refused();
    showOffer();
}

void frmMain::showOffer() {
    const std::optional<QString> draft = newAirport_.offer();
    QString text;
    if (draft) {
        const QStringList values = valuesIn(*draft);
        const qsizetype filled = values.size() - values.count(QString());
        text = filledIn(standingText(language_, u"0203"_s), state_.CurrentAirport, QString::number(filled));
    }
    c->draftHint.showText(text);
    c->txtRwy.forEach([&](int /*index*/, TextBox& field) {
        field.setOffered(draft ? Offered::Yes : Offered::No);
        field.widget().setAccessibleDescription(text);
    });
}

} // namespace quarvel
