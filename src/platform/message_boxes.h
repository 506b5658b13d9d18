#pragma once

#include <QString>

class QWidget;

namespace quarvel {

enum class Buttons { Ok, OkCancel, YesNo, OkAgainCancel };
enum class BoxIcon { None, Critical, Question, Exclamation, Information };
/// Closing a box without a button counts as Cancel, as No where there is no Cancel, as Ok where it is alone.
enum class Answer { Ok, Cancel, Yes, No, Again };

/// A message box as it is to be shown.
struct MessageBox {
    QString text;
    QString title;
    Buttons buttons = Buttons::Ok;
    BoxIcon icon = BoxIcon::None;
    QString detail{}; ///< stands below the text, smaller; mostly empty
};

/// The captions of the buttons, in the user's language.
struct ButtonCaptions {
    QString ok;
    QString cancel;
    QString yes;
    QString no;
    QString again;
};

/// Shows message boxes and waits for the answer.
class MessageBoxes {
public:
    MessageBoxes() = default;
    MessageBoxes(const MessageBoxes&) = delete;
    MessageBoxes& operator=(const MessageBoxes&) = delete;
    virtual ~MessageBoxes() = default;
    [[nodiscard]] virtual Answer show(QWidget* parent, const MessageBox& box,
                                      const ButtonCaptions& captions) = 0;
};

/// The desktop's own message boxes.
class QtMessageBoxes : public MessageBoxes {
public:
    [[nodiscard]] Answer show(QWidget* parent, const MessageBox& box,
                              const ButtonCaptions& captions) override;
};

} // namespace quarvel
