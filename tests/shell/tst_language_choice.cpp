#include "prompts/own_messages.h"
#include "support/test_program.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QWidget>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

/// The keys that a window asks a language file for and that would change what the user sees.
QStringList keysOf(const ControlWindow& window) {
    const QString section = window.windowName() + u'/';
    QStringList keys{section + window.windowName() + u".Caption"_s};
    for (const Control* control : window.controls()) {
        // A key would rename the language itself, or give another address than the one that is written to.
        if (control->name() == u"mnuLanguage"_s || control->name() == u"Label15"_s) continue;
        const QString caption = control->caption().value_or(QString()).trimmed();
        if (!caption.isEmpty() && caption != u"-") // the caption of a menu's separator
            keys.append(section + controlKey(*control) + u".Caption"_s);
        if (!control->toolTip().value_or(QString()).isEmpty())
            keys.append(section + controlKey(*control) + u".ToolTipText"_s);
    }
    return keys;
}

QStringList messageKeys() {
    QStringList keys;
    for (int number = 1; number <= 36; ++number)
        if ((number < 15 || number > 22) && number != 24)
            keys.append(u"Strings/%1"_s.arg(number, 4, 10, QChar(u'0')));
    for (const OwnMessage& message : ownMessages())
        keys.append(u"Strings/"_s + QString::fromUtf16(message.number));
    return keys;
}

} // namespace

/// The language list, the flags, and the shipped language files.
class LanguageChoiceTest : public QObject {
    Q_OBJECT

private:
    static QString caption(const TestProgram& test, const QString& button) {
        return test.control<QAbstractButton>(button)->text();
    }
    /// The languages of the menu, a star behind the checked one.
    static QStringList items(const TestProgram& test) {
        QStringList captions;
        for (const auto* action : test.mainWindow()->findChildren<QAction*>())
            if (action->objectName().startsWith(u"mnuLanguage("_s))
                captions.append(action->text() + (action->isChecked() ? u"*"_s : QString()));
        return captions;
    }

private Q_SLOTS:
    void flagSwitchesAllTextsAndIsRemembered() {
        TestProgram test;
        test.start();
        QCOMPARE(caption(test, u"cmdEsci"_s), u"&Uscita"_s);
        test.click(u"ImgLingua(0)"_s);
        QCOMPARE(caption(test, u"cmdEsci"_s), u"&Quit"_s);
        QCOMPARE(test.control<QWidget>(u"Frame2"_s)->accessibleName(), u"LANGUAGE"_s);
        QCOMPARE(test.control(u"txtRwy(38)"_s)->accessibleName(), u"ICAO CODE"_s);
        QCOMPARE(test.read(u"LangSetting.ini"_s), "[Language]\r\nCurrentLanguage=English\r\n");
        test.start(); // again
        QCOMPARE(items(test), QStringList({u"English*"_s, u"Italiano"_s}));
        QCOMPARE(caption(test, u"cmdEsci"_s), u"&Quit"_s);
    }

    void startsInTheSettingsLanguageOrItalianoOrTheFirst() {
        for (const auto& [setting, chosen, lastItem] :
             {std::tuple(QByteArray(), u"Italiano"_s, u"Italiano*"_s),
              {"Klingon", u"Klingon"_s, u"Italiano"_s}}) {
            TestProgram test;
            QFile::remove(test.path(u"LangSetting.ini"_s));
            if (!setting.isEmpty())
                test.write(u"LangSetting.ini"_s, "[Language]\r\nCurrentLanguage=" + setting + "\r\n");
            test.start();
            QCOMPARE(items(test), QStringList({u"English"_s, lastItem}));
            QCOMPARE(test.program().state().MLSCurrentLanguage, chosen);
            QCOMPARE(QFile::exists(test.path(u"LangSetting.ini"_s)), !setting.isEmpty());
        }
        TestProgram test;
        for (const auto& file : {u"LangSetting.ini"_s, u"Italiano.lng"_s}) QFile::remove(test.path(file));
        test.start();
        QCOMPARE(test.program().state().MLSCurrentLanguage, u"English"_s);
        QVERIFY(!test.control(u"ImgLingua(1)"_s)->isEnabled());
    }

    void withoutLanguageFilesTheDesignedTextsStay() {
        TestProgram test;
        for (const auto& file : {u"English.lng"_s, u"Italiano.lng"_s}) QFile::remove(test.path(file));
        test.start();
        QCOMPARE(test.boxes.shown.size(), 1);
        QCOMPARE(test.boxes.shown.first().text, u"Non è presente alcun file di linguaggio!"_s);
        QCOMPARE(caption(test, u"cmdElabora"_s), u"&CREA"_s);
        QCOMPARE(test.program().state().MLSCurrentLanguage, QString());
    }

    void anEmptiedCaptionStaysABlankTitle() { // for none at all the toolkit would show the program's name
        TestProgram test;
        QByteArray texts = test.read(u"Italiano.lng"_s);
        const qsizetype key = texts.indexOf("frmMain.Caption=");
        test.write(u"Italiano.lng"_s,
                   texts.replace(key, texts.indexOf('\r', key) - key, "frmMain.Caption=\"\""));
        test.start();
        QCOMPARE(test.mainWindow()->windowTitle(), u" "_s);
        test.click(u"ImgLingua(0)"_s);
        QCOMPARE(test.mainWindow()->windowTitle(), u" "_s);
    }

    void failedStartIsToldInTheChosenLanguage() {
        for (const bool english : {true, false}) {
            TestProgram test;
            if (english) test.write(u"LangSetting.ini"_s, "[Language]\r\nCurrentLanguage=English\r\n");
            for (const auto& file : {u"English.lng"_s, u"Italiano.lng"_s, u"LangSetting.ini"_s})
                if (!english) QVERIFY(QFile::remove(test.path(file)));
            Program program({test.programFolder(), {}},
                            {test.boxes, test.sounds, test.printer, test.urls, test.screen, test.end,
                             test.beeper, test.icons},
                            test.presenter);
            program.tell(Task::PrepareProgramFolder, {Fault::Unwritable, u"/somewhere/share"_s, {}});
            QCOMPARE(test.boxes.shown.size(), 1);
            const QString told = test.boxes.shown.first().text;
            QVERIFY(told.startsWith(english ? u"The program folder cannot be prepared.\n\n"_s
                                            : u"La cartella del programma non può essere preparata.\n\n"_s));
            QVERIFY(told.contains(u"/somewhere/share"_s));
            program.show(WindowName::frmMain); // it starts all the same
            QVERIFY(program.mainWindow().window()->isVisible());
        }
    }

    void noTwoButtonsOnShowShareAMnemonic() {
        const auto mnemonics = [](const QWidget* window) {
            QStringList keys;
            for (const auto* button : window->findChildren<QAbstractButton*>())
                if (button->isVisible() && button->isEnabled() && !button->shortcut().isEmpty())
                    keys.append(button->shortcut().toString());
            return keys;
        };
        for (const int language : {0, 1}) {
            TestProgram test;
            test.startWith(u"LIRF"_s);
            test.program().mainWindow().SelectLanguage(language);
            test.click(u"cmdInfo"_s);
            QCOMPARE(mnemonics(test.mainWindow()).removeDuplicates(), 0);
            test.click(u"cmdGrafica"_s);
            test.click(u"Option1(0)"_s);
            QVERIFY(!mnemonics(test.viewWindow()).isEmpty());
            QCOMPARE(mnemonics(test.viewWindow()).removeDuplicates(), 0);
        }
    }

    void shippedFilesHoldEveryKeyAndNoOther() {
        TestProgram test;
        const QByteArrayList shipped = {test.read(u"Italiano.lng"_s), test.read(u"English.lng"_s)};
        QFile::remove(test.path(u"Italiano.lng"_s)); // the windows are asked for their designed texts
        test.addAirport(u"LIRF"_s);
        test.addChart(u"aeroporti/LIRF/Sid/kenn1.gif"_s, {30, 40});
        test.start();
        QStringList needed = messageKeys();
        needed += keysOf(test.program().mainWindow());
        test.openViewer(u"LIRF"_s);
        needed += keysOf(test.program().viewWindow());
        test.openCompanion();
        needed += keysOf(test.program().companionWindow());
        needed.sort();
        static const QRegularExpression form(u"^([^=\\s]+)=\"(.+)\"$"_s);
        for (const QByteArray& content : shipped) {
            QStringList held;
            QString section;
            for (const QString& line : QString::fromLatin1(content).split(u"\r\n"_s, Qt::SkipEmptyParts)) {
                const QRegularExpressionMatch entry = form.match(line);
                if (line.startsWith(u'['))
                    section = line.mid(1, line.size() - 2);
                else
                    held.append(section + u'/' + entry.captured(1));
                QVERIFY2(line.startsWith(u'[') || entry.hasMatch(), qPrintable(line));
                QVERIFY2(entry.captured(2).size() <= 511, qPrintable(line));
            }
            held.sort();
            QCOMPARE(held, needed);
        }
    }
};

QTEST_MAIN(LanguageChoiceTest)
#include "tst_language_choice.moc"
