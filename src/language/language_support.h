#pragma once

#include "files/result.h"
#include "files/whole_file.h"
#include "forms/core/control.h"

#include <QString>
#include <QStringList>

namespace quarvel {

/// The texts of the current language. Nothing is cached: every lookup reads the language file again, so that
/// an edited file is seen at once.
class modLanguageSupport {
public:
    /// `programFolder` holds the language files and LangSetting.ini; `currentLanguage` is the process-wide
    /// MLSCurrentLanguage, which must outlive this object.
    /// `beforeReplacing` is told when the setting file is about to be replaced.
    modLanguageSupport(QString programFolder, QString& currentLanguage, BeforeReplacing beforeReplacing = {});

    [[nodiscard]] bool hasLanguage() const { return !MLSCurrentLanguage.isEmpty(); }

    /// The text of a numbered message ("0001") in the current language, or an empty text when it cannot be
    /// had. While no language is current, the setting file is asked for one first.
    [[nodiscard]] QString MLSGetString(const QString& number);

    /// Puts the current language's texts on a window and on every control of it. Between two controls the
    /// window handles its pending messages; the pass stops when one of them unloads the window.
    void MLSApplyLanguage(ControlWindow& window) const;

    /// The names of the language files (without ".lng") of the program folder, by name without regard to
    /// case. Fails with the faults of listFiles.
    [[nodiscard]] Result<QStringList> languages() const;

    /// Why the current language's texts cannot be had although it has a file. A language without one is not a
    /// failure: the windows keep the texts that they have.
    [[nodiscard]] Result<void> checkLanguageFile() const;

    /// The language that the setting file names, empty when it has no entry. Fails when the file is missing
    /// or cannot be read.
    [[nodiscard]] Result<QString> settingLanguage() const;

    /// Records a language in the setting file. Fails with the faults of WriteIniString.
    [[nodiscard]] Result<Written> writeSettingLanguage(const QString& language) const;

private:
    [[nodiscard]] Result<QString> languageFile() const;
    [[nodiscard]] Result<QString> settingFile() const;

    QString programFolder_;
    QString& MLSCurrentLanguage;
    BeforeReplacing beforeReplacing_;
};

} // namespace quarvel
