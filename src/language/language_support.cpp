#include "language/language_support.h"

#include "files/lookup.h"
#include "files/system_name.h"
#include "language/profile.h"
#include "text/strings.h"

#include <QFileInfo>
#include <algorithm>
#include <utility>

namespace quarvel {
using namespace Qt::StringLiterals;
namespace {

/// Whether a language's name stays in the program folder as the name of a file. The name may come from a
/// setting file that anybody can edit.
bool isLanguageName(const QString& name) {
    const auto refused = [](QChar letter) {
        return letter == u'/' || letter == u'\\' || letter == u':' ||
               letter.category() == QChar::Other_Control;
    };
    return !name.isEmpty() && name != u"."_s && name != u".."_s &&
           std::none_of(name.begin(), name.end(), refused);
}

} // namespace

modLanguageSupport::modLanguageSupport(QString programFolder, QString& currentLanguage,
                                       BeforeReplacing beforeReplacing)
    : programFolder_(std::move(programFolder)), MLSCurrentLanguage(currentLanguage),
      beforeReplacing_(std::move(beforeReplacing)) {}

QString modLanguageSupport::MLSGetString(const QString& number) {
    if (MLSCurrentLanguage.isEmpty()) {
        if (Result<QString> setting = settingLanguage()) MLSCurrentLanguage = setting.take();
    }
    Result<QString> text =
        languageFile().then([&](const QString& file) { return ReadIniString(file, u"Strings"_s, number); });
    return text ? text.take() : QString();
}

Result<QStringList> modLanguageSupport::languages() const {
    const Result<QStringList> files = listFiles(programFolder_);
    if (!files) return files.failure();
    QStringList names;
    for (const QString& file : files.value()) {
        // Composed, as the setting file will give the name back: it is compared exactly.
        const QString name = StripExtension(readableName(file)).normalized(QString::NormalizationForm_C);
        if (file.endsWith(u".lng", Qt::CaseInsensitive) && isLanguageName(name)) names.append(name);
    }
    names.removeDuplicates(); // the same name with .lng and .LNG
    return names;
}

Result<void> modLanguageSupport::checkLanguageFile() const {
    const Result<QByteArray> texts = languageFile().then(readProfile);
    if (texts || texts.failure().fault == Fault::NotFound) return {};
    return texts.failure();
}

Result<QString> modLanguageSupport::settingLanguage() const {
    return settingFile().then(
        [](const QString& file) { return ReadIniString(file, u"Language"_s, u"CurrentLanguage"_s); });
}

Result<Written> modLanguageSupport::writeSettingLanguage(const QString& language) const {
    return settingFile().then([&](const QString& file) {
        return WriteIniString(file, u"Language"_s, u"CurrentLanguage"_s, language, beforeReplacing_);
    });
}

/// The current language's file; NotFound when there can be none.
Result<QString> modLanguageSupport::languageFile() const {
    if (!isLanguageName(MLSCurrentLanguage)) return Failure{Fault::NotFound, MLSCurrentLanguage, {}};
    return resolvePath(programFolder_, MLSCurrentLanguage + u".lng"_s);
}

Result<QString> modLanguageSupport::settingFile() const {
    return resolvePath(programFolder_, u"LangSetting.ini"_s);
}

} // namespace quarvel
