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
    QStringList keys{window.windowName() + u".Caption"_s};
    for (const Control* control : window.controls()) {
        if (control->name() == u"mnuLanguage"_s) continue; // a key would rename the language itself
        const QString caption = control->caption().value_or(QString()).trimmed();
        if (!caption.isEmpty() && caption != u"-") // the caption of a menu's separator
            keys.append(controlKey(*control) + u".Caption"_s);
        if (!control->toolTip().value_or(QString()).isEmpty())
            keys.append(controlKey(*control) + u".ToolTipText"_s);
    }
    return keys;
}

QStringList messageNumbers() {
    QStringList numbers;
    for (int number = 1; number <= 36; ++number)
        if ((number < 15 || number > 22) && number != 24)
            numbers.append(u"%1"_s.arg(number, 4, 10, QChar(u'0')));
    for (const OwnMessage& message : ownMessages()) numbers.append(QString::fromUtf16(message.number));
    return numbers;
}

} // namespace

/// The language list, the flags, and the shipped language files.
class LanguageChoiceTest : public QObject {
    Q_OBJECT

private:
    static QString caption(QWidget* window, const QString& button) {
        return TestProgram::control<QAbstractButton>(window, button)->text();
    }
    static QStringList items(TestProgram& test, QString* checked = nullptr) {
        QStringList captions;
        for (const auto* action : test.mainWindow()->findChildren<QAction*>())
            if (action->objectName().startsWith(u"mnuLanguage("_s)) {
                captions.append(action->text());
                if (checked != nullptr && action->isChecked()) *checked = action->text();
            }
        return captions;
    }

private Q_SLOTS:
    void flagSwitchesAllTextsAndIsRemembered() {
        TestProgram test;
        test.start();
        QCOMPARE(caption(test.mainWindow(), u"cmdEsci"_s), u"&Uscita"_s);
        TestProgram::click(test.mainWindow(), u"ImgLingua(0)"_s);
        QCOMPARE(caption(test.mainWindow(), u"cmdEsci"_s), u"&Quit"_s);
        QCOMPARE(TestProgram::control<QWidget>(test.mainWindow(), u"Frame2"_s)->accessibleName(),
                 u"LANGUAGE"_s);
        QCOMPARE(TestProgram::control(test.mainWindow(), u"txtRwy(38)"_s)->accessibleName(), u"ICAO CODE"_s);
        QCOMPARE(test.read(u"LangSetting.ini"_s), "[Language]\r\nCurrentLanguage=English\r\n");
        test.start(); // again
        QString checked;
        items(test, &checked);
        QCOMPARE(checked, u"English"_s);
        QCOMPARE(caption(test.mainWindow(), u"cmdEsci"_s), u"&Quit"_s);
    }

    void startsInTheSettingsLanguageOrItalianoOrTheFirst() {
        struct Case {
            QByteArray setting; // empty: no setting file
            QString language, checked;
        };
        for (const Case& start :
             {Case{"", u"Italiano"_s, u"Italiano"_s}, {"Klingon", u"Klingon"_s, QString()}}) {
            TestProgram test;
            QFile::remove(test.path(u"LangSetting.ini"_s));
            if (!start.setting.isEmpty())
                test.write(u"LangSetting.ini"_s, "[Language]\r\nCurrentLanguage=" + start.setting + "\r\n");
            test.start();
            QString checked;
            QCOMPARE(items(test, &checked), QStringList({u"English"_s, u"Italiano"_s}));
            QCOMPARE(checked, start.checked);
            QCOMPARE(test.program().state().MLSCurrentLanguage, start.language);
            QCOMPARE(QFile::exists(test.path(u"LangSetting.ini"_s)), !start.setting.isEmpty());
        }
        TestProgram test;
        QFile::remove(test.path(u"LangSetting.ini"_s));
        QFile::remove(test.path(u"Italiano.lng"_s));
        test.start();
        QCOMPARE(test.program().state().MLSCurrentLanguage, u"English"_s);
        QVERIFY(!TestProgram::control(test.mainWindow(), u"ImgLingua(1)"_s)->isEnabled());
    }

    void withoutLanguageFilesTheDesignedTextsStay() {
        TestProgram test;
        QFile::remove(test.path(u"English.lng"_s));
        QFile::remove(test.path(u"Italiano.lng"_s));
        test.start();
        QCOMPARE(test.boxes.shown.size(), 1);
        QCOMPARE(test.boxes.shown.first().text, u"Non è presente alcun file di linguaggio!"_s);
        QCOMPARE(caption(test.mainWindow(), u"cmdElabora"_s), u"&CREA"_s);
        QCOMPARE(test.program().state().MLSCurrentLanguage, QString());
    }

    void failedStartIsToldInTheChosenLanguage() {
        const Failure failure{Fault::Unwritable, u"/somewhere/share"_s, {}};
        for (const auto& [language, told] :
             {std::pair(QByteArray("English"), u"The program folder cannot be prepared."_s),
              {"None", u"La cartella del programma non può essere preparata."_s}}) {
            TestProgram test;
            test.write(u"LangSetting.ini"_s, "[Language]\r\nCurrentLanguage=" + language + "\r\n");
            const QString folder = QFileInfo(test.path(u"LangSetting.ini"_s)).path();
            Program program(folder,
                            {test.boxes, test.sounds, test.printer, test.urls, test.screen, test.end,
                             test.beeper, test.icons},
                            test.presenter);
            program.tell(Task::PrepareProgramFolder, failure);
            QCOMPARE(test.boxes.shown.size(), 1);
            QVERIFY(test.boxes.shown.first().text.startsWith(told + u"\n\n"_s));
            QVERIFY(test.boxes.shown.first().text.contains(failure.path));
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
            TestProgram::click(test.mainWindow(), u"cmdInfo"_s);
            QStringList keys = mnemonics(test.mainWindow());
            QCOMPARE(keys.removeDuplicates(), 0);
            TestProgram::click(test.mainWindow(), u"cmdGrafica"_s);
            TestProgram::click(test.viewWindow(), u"Option1(0)"_s);
            keys = mnemonics(test.viewWindow());
            QVERIFY(!keys.isEmpty());
            QCOMPARE(keys.removeDuplicates(), 0);
        }
    }

    void shippedFilesHoldEveryKeyAndNoOther() {
        TestProgram test;
        const QByteArrayList shipped = {test.read(u"Italiano.lng"_s), test.read(u"English.lng"_s)};
        QFile::remove(test.path(u"Italiano.lng"_s)); // the windows are asked for their designed texts
        test.addAirport(u"LIRF"_s);
        test.addChart(u"aeroporti/LIRF/Sid/kenn1.gif"_s, {30, 40});
        test.start();
        QStringList needed;
        for (const QString& key : keysOf(test.program().mainWindow())) needed.append(u"frmMain/"_s + key);
        test.openViewer(u"LIRF"_s);
        for (const QString& key : keysOf(test.program().viewWindow())) needed.append(u"frmView/"_s + key);
        test.openCompanion();
        for (const QString& key : keysOf(test.program().companionWindow())) needed.append(u"frmFS9/"_s + key);
        for (const QString& number : messageNumbers()) needed.append(u"Strings/"_s + number);

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
