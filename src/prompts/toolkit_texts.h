#pragma once

#include "language/language_support.h"

#include <QTranslator>

namespace quarvel {

/// The toolkit's own texts in the program's windows (the menu of a text box), in the current language. They
/// are numbered messages like the program's own; the toolkit's translations need not be installed.
class ToolkitTexts : public QTranslator {
public:
    explicit ToolkitTexts(modLanguageSupport& language);

    [[nodiscard]] QString translate(const char* context, const char* sourceText, const char* disambiguation,
                                    int n) const override;
    [[nodiscard]] bool isEmpty() const override { return false; }

private:
    modLanguageSupport& language_;
};

} // namespace quarvel
