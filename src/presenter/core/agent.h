#pragma once

#include <QString>

namespace quarvel {

/// A character on the desktop. The four requests return at once and are carried out one after the other, in
/// the order in which they were made; the two properties take effect at once.
class AgentCharacter {
public:
    AgentCharacter() = default;
    AgentCharacter(const AgentCharacter&) = delete;
    AgentCharacter& operator=(const AgentCharacter&) = delete;

    virtual void Show() = 0;
    /// An animation by its name; a name that the character does not know is passed over.
    virtual void Play(const QString& animation) = 0;
    virtual void Speak(const QString& text) = 0;
    virtual void Hide() = 0;

    /// The language of its speech, as a Windows language identifier.
    virtual void setLanguageID(int language) = 0;
    /// Which parts of a word balloon are shown; 0 for none.
    virtual void setBalloonStyle(int style) = 0;

protected:
    ~AgentCharacter() = default;
};

/// Where characters are loaded and found again.
class AgentControl {
public:
    AgentControl() = default;
    AgentControl(const AgentControl&) = delete;
    AgentControl& operator=(const AgentControl&) = delete;

    virtual void setConnected(bool connected) = 0;
    /// Loads a character file under an ID. Without effect while the ID is taken or when there is no such
    /// file.
    virtual void load(const QString& id, const QString& path) = 0;
    /// The character that has been loaded under an ID; nullptr for none.
    [[nodiscard]] virtual AgentCharacter* character(const QString& id) = 0;

protected:
    ~AgentControl() = default;
};

} // namespace quarvel
