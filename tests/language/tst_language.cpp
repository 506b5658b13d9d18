#include "files/whole_file.h"
#include "language/language_support.h"
#include "language/profile.h"
#include "value_window.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <sys/stat.h>

using namespace quarvel;
using namespace Qt::StringLiterals;

class tst_language : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        current_.clear();
    }
    void profile_data();
    void profile();
    void lineScan_data();
    void lineScan();
    void lineScanStartsAbove64000Bytes();
    void onlyARegularFileIsRead();
    void writing_data();
    void writing();
    void writingRefuses();
    void messageOfTheSettingsLanguage();
    void languageWithoutAFile_data();
    void languageWithoutAFile();
    void languageList();
    void passOverAWindow();
    void passChangesNothingWithoutAFile();
    void passStopsAtUnloadAndReload();

private:
    QString path(const QString& name) const { return folder_->filePath(name); }
    void put(const QString& name, const QByteArray& bytes) const {
        QVERIFY(writeWholeFile(path(name), bytes).ok());
    }
    QByteArray bytesOf(const QString& name) const { return readWholeFile(path(name), 1 << 20).take(); }
    modLanguageSupport support() { return modLanguageSupport(folder_->path(), current_); }

    std::unique_ptr<QTemporaryDir> folder_;
    QString current_;
};

void tst_language::profile_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    const auto row = [](const char* claim, const QByteArray& bytes, const QString& value,
                        const QString& key = u"0001"_s) { QTest::newRow(claim) << bytes << key << value; };
    const QByteArray head = "[Strings]\r\n";
    row("key in other letter case", head + "frmMain.Caption=\"x\"\r\n", u"x"_s, u"frmmain.caption"_s);
    row("accented key in other letter case", head + "CITT\xC0=\"x\"\r\n", u"x"_s, u"città"_s);
    row("section in other letter case, blanks around it", " \t[STRINGS] \r\n0001=x\r\n", u"x"_s);
    row("blanks around key and value", head + " \t0001\t =  \"a b\" \t\r\n", u"a b"_s);
    row("blanks inside the quotes stay", head + "0001=\"  a  \"\r\n", u"  a  "_s);
    row("single quotes", head + "0001='a'\r\n", u"a"_s);
    row("only one pair of quotes is dropped", head + "0001=\"'a'\"\r\n", u"'a'"_s);
    row("quotes that do not match stay", head + "0001=\"a'\r\n", u"\"a'"_s);
    row("a lone quote stays", head + "0001=\"\r\n", u"\""_s);
    row("an empty pair of quotes", head + "0001=\"\"\r\n", QString());
    row("first entry wins", head + "0001=a\r\n0001=b\r\n", u"a"_s);
    row("first section of the name wins", head + "[x]\r\n[Strings]\r\n0001=b\r\n", QString());
    row("key before any section", "0001=a\r\n[Strings]\r\n", QString());
    row("a bracket elsewhere opens no section", head + "[x\r\n0002=[x]\r\n0001=a\r\n", u"a"_s);
    row("longer key", head + "00011=a\r\n0001=b\r\n", u"b"_s);
    row("value holds the equals sign", head + "0001=a=b\r\n", u"a=b"_s);
    row("comment", head + "  ;0001=a\r\n0001=b ; c\r\n", u"b ; c"_s);
    row("key that begins like a comment", head + ";1=a\r\n", QString(), u";1"_s);
    row("bare line feeds, no last line end", "[Strings]\n0001=a", u"a"_s);
    row("code page", head + "0001=\"Citt\xE0 \x80\"\r\n", u"Città €"_s);
    row("up to the first NUL", head + QByteArrayLiteral("0001=ab\0cd\r\n"), u"ab"_s);
    row("511 characters", head + "0001=\"" + QByteArray(600, 'a') + "\"\r\n", QString(511, u'a'));
    row("key that the code page lacks", head + "0001=a\r\n", QString(), u"Ω"_s);
    row("empty file", "", QString());
}

void tst_language::profile() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, key);
    put(u"a.lng"_s, bytes);
    QTEST(ReadIniString(path(u"a.lng"_s), u"Strings"_s, key).value(), "value");
}

void tst_language::lineScan_data() {
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("value");
    const auto row = [](const char* claim, const QByteArray& lines, const QString& value) {
        QTest::newRow(claim) << lines << value;
    };
    row("quoted text loses its quotes", "Key=\"abc\"\r\n", u"abc"_s);
    row("blanks around the equals sign", "Key = \"abc\"\r\n", u" \"abc"_s);
    row("letter case matters", "key=\"abc\"\r\n", QString());
    row("the first in whatever section", "[other]\r\nKey=\"1\"\r\n[Strings]\r\nKey=\"2\"\r\n", u"1"_s);
    row("a line that merely begins with the key", "Key2=\"abc\"\r\nKey=\"x\"\r\n", u"\"abc"_s);
    row("the key within a line", "a Key=\"1\" Key=\"2\"\r\nKey=\"3\"\r\n", u"3"_s);
    row("empty quotes", "Key=\"\"\r\n", QString());
    row("one character after the equals sign", "Key=a\r\nKey=\"b\"\r\n", QString());
    row("the key alone", "Key\r\nKey=\"b\"\r\n", QString());
    row("bare line feeds", "Key=\"abc\"\nKey=\"x\"\n", u"abc"_s);
    row("last line without line end", "Key=\"abc\"", u"abc"_s);
    row("not cut to 511 characters", "Key=\"" + QByteArray(600, 'a') + "\"\r\n", QString(600, u'a'));
}

void tst_language::lineScan() {
    QFETCH(QByteArray, lines);
    put(u"a.lng"_s, QByteArray(largestProfileBytes, ';') + "\r\n" + lines);
    QTEST(ReadIniString(path(u"a.lng"_s), u"Strings"_s, u"Key"_s).value(), "value");
}

void tst_language::lineScanStartsAbove64000Bytes() {
    const QByteArray head = "[Strings]\r\nkey=\"abc\"\r\n;";
    put(u"a.lng"_s, head + QByteArray(64000 - head.size(), 'x'));
    QCOMPARE(ReadIniString(path(u"a.lng"_s), u"Strings"_s, u"KEY"_s).value(), u"abc"_s);
    put(u"a.lng"_s, head + QByteArray(64001 - head.size(), 'x'));
    QCOMPARE(ReadIniString(path(u"a.lng"_s), u"Strings"_s, u"KEY"_s).value(), QString());
    QCOMPARE(ReadIniString(path(u"a.lng"_s), u"any"_s, u"key"_s).value(), u"abc"_s);
}

void tst_language::onlyARegularFileIsRead() {
    QCOMPARE(ReadIniString(path(u"a.lng"_s), u"s"_s, u"k"_s).failure().fault, Fault::NotFound);
    QDir(folder_->path()).mkdir(u"b.lng"_s);
    QCOMPARE(ReadIniString(path(u"b.lng"_s), u"s"_s, u"k"_s).failure().fault, Fault::NotRegular);
    QCOMPARE(::mkfifo(QFile::encodeName(path(u"c.lng"_s)).constData(), 0600), 0);
    QCOMPARE(ReadIniString(path(u"c.lng"_s), u"s"_s, u"k"_s).failure().fault, Fault::NotRegular);
}

void tst_language::writing_data() {
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char* claim, const QByteArray& before, const QByteArray& after) {
        QTest::newRow(claim) << before << after;
    };
    row("empty file", "", "[Language]\r\nCurrentLanguage=new\r\n");
    row("value replaced, quotes too", "[Language]\r\nCurrentLanguage=\"old\"\r\nb=1\r\n",
        "[Language]\r\nCurrentLanguage=new\r\nb=1\r\n");
    row("other lines stay to the byte",
        QByteArrayLiteral("\xFF\0;\r\n\n[language]\n currentLANGUAGE = old\t\nCurrentLanguage=2"),
        QByteArrayLiteral("\xFF\0;\r\n\n[language]\n currentLANGUAGE = new\t\nCurrentLanguage=2"));
    row("last line keeps lacking its end", "[Language]\nCurrentLanguage=", "[Language]\nCurrentLanguage=new");
    row("key added behind the section's last entry", "[Language]\na=1\n\n[x]\nCurrentLanguage=2\n",
        "[Language]\na=1\nCurrentLanguage=new\r\n\n[x]\nCurrentLanguage=2\n");
    row("key added to an empty section", "[Language]", "[Language]\r\nCurrentLanguage=new\r\n");
    row("section added behind a line without end", "a=1\n[x]\nb=2",
        "a=1\n[x]\nb=2\r\n[Language]\r\nCurrentLanguage=new\r\n");
    row("a comment is no entry", "[Language]\r\n;CurrentLanguage=1\r\n",
        "[Language]\r\n;CurrentLanguage=1\r\nCurrentLanguage=new\r\n");
}

void tst_language::writing() {
    QFETCH(QByteArray, before);
    put(u"LangSetting.ini"_s, before);
    support().writeSettingLanguage(u"new"_s);
    QTEST(bytesOf(u"LangSetting.ini"_s), "after");
    QCOMPARE(support().settingLanguage().value(), u"new"_s);
}

void tst_language::writingRefuses() {
    put(u"a.ini"_s, "[s]\r\nk=1\r\n");
    QVERIFY(!WriteIniString(path(u"a.ini"_s), u"s"_s, u"k"_s, u"two\r\nlines"_s));
    QVERIFY(!WriteIniString(path(u"a.ini"_s), u"s"_s, u"k"_s, u"Ελληνικά"_s));
    QCOMPARE(bytesOf(u"a.ini"_s), QByteArray("[s]\r\nk=1\r\n"));
    QVERIFY(!WriteIniString(path(u"no/a.ini"_s), u"s"_s, u"k"_s, u"1"_s));
    QVERIFY(!WriteIniString(folder_->path(), u"s"_s, u"k"_s, u"1"_s));
}

void tst_language::messageOfTheSettingsLanguage() {
    modLanguageSupport language = support();
    put(u"ITALIANO.LNG"_s, "[Strings]\r\n0001=\"uno\"\r\n");
    QCOMPARE(language.MLSGetString(u"0001"_s), QString());
    QVERIFY(current_.isEmpty() && !language.settingLanguage());

    language.writeSettingLanguage(u"Italiano"_s);
    QCOMPARE(bytesOf(u"LangSetting.ini"_s), QByteArray("[Language]\r\nCurrentLanguage=Italiano\r\n"));
    QCOMPARE(language.settingLanguage().value(), u"Italiano"_s);
    QCOMPARE(language.MLSGetString(u"0001"_s), u"uno"_s);
    QCOMPARE(current_, u"Italiano"_s);

    language.writeSettingLanguage(u"English"_s); // the language in use stays, its file is read anew
    put(u"ITALIANO.LNG"_s, "[Strings]\r\n0001=\"due\"\r\n");
    QCOMPARE(language.MLSGetString(u"0001"_s), u"due"_s);
    QCOMPARE(language.MLSGetString(u"0002"_s), QString());
}

void tst_language::languageWithoutAFile_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("none") << QString();
    QTest::newRow("the folder itself") << u"."_s;
    QTest::newRow("the folder above") << u".."_s;
    QTest::newRow("beside the folder") << u"../out"_s;
    QTest::newRow("below the folder") << u"sub/in"_s;
    QTest::newRow("backslash") << u"sub\\in"_s;
    QTest::newRow("drive") << u"C:in"_s;
    QTest::newRow("line feed") << u"a\nb"_s;
    QTest::newRow("NUL") << u"nul"_s + QChar(u'\0');
}

void tst_language::languageWithoutAFile() {
    QFETCH(QString, name);
    QVERIFY(QDir(folder_->path()).mkpath(u"program/sub"_s));
    for (const QString& file : {u"out.lng"_s, u"program/.lng"_s, u"program/sub/in.lng"_s,
                                u"program/sub\\in.lng"_s, u"program/C:in.lng"_s, u"program/a\nb.lng"_s,
                                u"program/nul"_s, u"program/..lng"_s, u"program/...lng"_s})
        put(file, "[Strings]\r\n0001=\"found\"\r\n");
    current_ = name;
    QCOMPARE(modLanguageSupport(path(u"program"_s), current_).MLSGetString(u"0001"_s), QString());
}

void tst_language::languageList() {
    QCOMPARE(support().languages(), QStringList());
    for (const QString& name : {u"Italiano.lng"_s, u"english.LNG"_s, u"Deutsch.lng"_s, u".lng"_s,
                                u".hidden.lng"_s, u"a:b.lng"_s, u"readme.txt"_s, u"lng"_s})
        put(name, "");
    QDir(folder_->path()).mkdir(u"folder.lng"_s);
    QCOMPARE(support().languages(), QStringList({u"Deutsch"_s, u"english"_s, u"Italiano"_s}));
}

void tst_language::passOverAWindow() {
    current_ = u"English"_s;
    put(u"English.lng"_s, "[frmView]\r\nlbl.Caption=\"wrong\"\r\n[frmMain]\r\ncmdEsci.Caption=\"Exit\"\r\n"
                          "ImgLingua(0).ToolTipText=\"zero\"\r\nImgLingua(1).ToolTipText=\"one\"\r\n"
                          "ImgLingua.Tag=\"no\"\r\nImgLingua(1).Tag=\"@L\"\r\nlbl.Tag=\"\"\r\n"
                          "tab.TabCaption(1)=\"second\"\r\ntab(3).TabCaption(0)=\"no\"\r\n");
    ValueWindow window;
    ValueControl& button = window.add(u"cmdEsci"_s);
    ValueControl& first = window.add(u"ImgLingua"_s, 0);
    ValueControl& second = window.add(u"ImgLingua"_s, 1);
    ValueControl& label = window.add(u"lbl"_s);
    ValueControl& tab = window.add(u"tab"_s, 3);
    second.caption_.reset();
    tab.tabs_ = {u"designed"_s, u"designed"_s};

    for (int round = 0; round < 2; ++round) { // a second pass changes nothing more
        support().MLSApplyLanguage(window);
        QCOMPARE(window.caption + window.tag, QString());
        QCOMPARE(*button.caption_ + *button.toolTip_ + *button.tag_, u"Exitdesigneddesigned"_s);
        QCOMPARE(*first.toolTip_ + *first.tag_, u"zerodesigned"_s);
        QCOMPARE(*second.toolTip_ + *second.tag_, u"one@L"_s);
        QCOMPARE(*label.caption_ + *label.tag_, u"designeddesigned"_s);
        QCOMPARE(tab.tabs_, QStringList({QString(), u"second"_s}));
    }
    put(u"English.lng"_s, "[frmMain]\r\nfrmMain.Caption=\"Main\"\r\nfrmMain.Tag=\"tag\"\r\n");
    support().MLSApplyLanguage(window);
    QCOMPARE(window.caption, QString()); // an empty caption stays empty
    QCOMPARE(window.tag, u"tag"_s);
    window.caption = u"designed"_s;
    support().MLSApplyLanguage(window);
    QCOMPARE(window.caption, u"Main"_s);
}

void tst_language::passChangesNothingWithoutAFile() {
    put(u".lng"_s, "[frmMain]\r\ncmd.Caption=\"x\"\r\n");
    put(u"LangSetting.ini"_s, "[Language]\r\nCurrentLanguage=Italiano\r\n");
    put(u"Italiano.lng"_s, "[frmMain]\r\ncmd.Caption=\"x\"\r\n");
    ValueWindow window;
    ValueControl& control = window.add(u"cmd"_s);
    control.tabs_ = {u"designed"_s};
    for (const QString& name : {QString(), u"English"_s}) {
        current_ = name;
        support().MLSApplyLanguage(window);
        QCOMPARE(window.caption + window.tag, u"designeddesigned tag"_s);
        QCOMPARE(*control.caption_ + control.tabs_.at(0), u"designeddesigned"_s);
        QCOMPARE(current_, name); // the pass does not ask the setting file
    }
}

void tst_language::passStopsAtUnloadAndReload() {
    current_ = u"English"_s;
    put(u"English.lng"_s, "[frmMain]\r\na.Caption=\"A\"\r\nb.Caption=\"B\"\r\n");
    for (const bool loadedAgain : {false, true}) {
        ValueWindow window;
        window.add(u"a"_s);
        window.add(u"b"_s);
        int passes = 0;
        window.pending = [&] {
            ++passes;
            window.list.clear(); // the controls die with the window
            window.loaded = loadedAgain;
            if (!loadedAgain) return;
            ++window.loadings;
            window.add(u"b"_s);
        };
        support().MLSApplyLanguage(window);
        QCOMPARE(passes, 1);
        if (loadedAgain) QCOMPARE(*window.list.front()->caption_, u"designed"_s);
    }
}

QTEST_GUILESS_MAIN(tst_language)
#include "tst_language.moc"
