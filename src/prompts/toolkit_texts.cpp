#include "prompts/toolkit_texts.h"

#include "prompts/own_messages.h"

#include <array>
#include <string_view>

namespace quarvel {
namespace {

struct ToolkitText {
    std::string_view source;
    const char16_t* number;
};

constexpr std::array editMenu = {ToolkitText{"&Undo", u"0140"},     ToolkitText{"&Redo", u"0141"},
                                 ToolkitText{"Cu&t", u"0142"},      ToolkitText{"&Copy", u"0143"},
                                 ToolkitText{"&Paste", u"0144"},    ToolkitText{"Delete", u"0145"},
                                 ToolkitText{"Select All", u"0146"}};

} // namespace

ToolkitTexts::ToolkitTexts(modLanguageSupport& language) : language_(language) {}

QString ToolkitTexts::translate(const char* context, const char* sourceText, const char* /*disambiguation*/,
                                int /*n*/) const {
    const std::string_view of(context);
    if (of != "QLineEdit" && of != "QWidgetTextControl") return {};
    for (const ToolkitText& text : editMenu)
        if (text.source == sourceText) return ownText(language_, QString::fromUtf16(text.number));
    return {};
}

} // namespace quarvel
