#pragma once

#include <QObject>
#include <QString>

namespace quarvel {

/// Who reads texts aloud, one at a time.
class Voice : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Begins to read a text and returns at once. A text that is still being read is cut off: speak again
    /// after finished() to have every text heard.
    virtual void speak(const QString& text) = 0;
    /// Silences the voice at once; without effect when it is silent.
    virtual void stop() = 0;

Q_SIGNALS:
    /// How loud the voice is, 0 to 1, some thirty times a second in step with what is heard; 0 at the end.
    void loudness(double level);
    /// Once for every speak(), and never before that has returned: the text has been read or cut off, or the
    /// time that reading it takes has passed in silence because it cannot be heard.
    void finished();
};

} // namespace quarvel
