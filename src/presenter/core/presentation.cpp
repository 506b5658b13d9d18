#include "presenter/core/presentation.h"

#include <array>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

constexpr char16_t characterId[] = u"Genie";
constexpr std::array characterFiles = {u"C:\\WINNT\\MSAGENT\\CHARS\\merlin.acs",
                                       u"C:\\WINDOWS\\MSAGENT\\CHARS\\merlin.acs"};
constexpr int italian = 0x0410;
constexpr int noBalloon = 0;
constexpr char16_t nothingToRead[] = u"Mi spiace il fail è vuoto.       Se vuoi puoi inserire qualunque cosa "
                                     u"riguardo all'aeroporto e io te lo "
                                     u"presenterò la prossima volta...";

void readAloud(AgentCharacter& character, const QString& text) {
    character.Play(u"Read"_s);
    for (const QString& piece : spokenPieces(text)) character.Speak(piece);
    character.Play(u"ReadReturn"_s);
}

} // namespace

QStringList spokenPieces(const QString& text) {
    const auto separator = u"\r\n"_s;
    QStringList pieces;
    qsizetype from = 0;
    while (pieces.size() < mostPieces) {
        const qsizetype end = text.indexOf(separator, from);
        pieces.append(text.sliced(from, (end < 0 ? text.size() : end) - from));
        if (end < 0) break;
        from = end + separator.size();
    }
    return pieces;
}

void presentText(AgentControl& Agent, AgentCharacter*& Genie, const QString& text) {
    const QString id = QString::fromUtf16(characterId);
    Agent.setConnected(true);
    for (const char16_t* file : characterFiles) Agent.load(id, QString::fromUtf16(file));
    Genie = Agent.character(id);
    if (Genie == nullptr) return; // nobody is there to take a further step
    Genie->Show();
    Genie->setLanguageID(italian);
    Genie->Play(u"Greet"_s);
    Genie->Play(u"RestPose"_s);
    Genie->setBalloonStyle(noBalloon);
    if (text.isEmpty()) {
        Genie->Play(u"Decline"_s);
        Genie->Speak(QString::fromUtf16(nothingToRead));
    } else {
        readAloud(*Genie, text);
    }
    Genie->Play(u"Wave"_s);
    Genie->Hide();
}

} // namespace quarvel
