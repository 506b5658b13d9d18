#include "files/whole_file.h"
#include "language/language_support.h"
#include "language/profile.h"
#include "value_window.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <utility>

using namespace quarvel;
using namespace Qt::StringLiterals;

class tst_language : public QObject {
    Q_OBJECT

private:
    QString path(const QString& name) const { return folder_->filePath(name); }
    void put(const QString& name, const QByteArray& bytes) const {
        QVERIFY(writeWholeFile(path(name), bytes).ok());
    }
    QByteArray bytesOf(const QString& name) const { return readWholeFile(path(name), 1 << 20).take(); }
    modLanguageSupport support() { return modLanguageSupport(folder_->path(), current_); }

    std::unique_ptr<QTemporaryDir> folder_;
    QString current_;

private Q_SLOTS:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        current_.clear();
    }
    void profile_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        const auto row = [](const char* claim, const QByteArray& bytes, const QString& value,
                            const QString& key = u"0001"_s) {
            QTest::newRow(claim) << bytes << key << value;
        };
        const QByteArray head = "[Strings]\r\n";
        row("key in other letter case", head + "frmMain.Caption=\"x\"\r\n", u"x"_s, u"frmmain.caption"_s);
        row("section in other letter case, blanks around it", " \t[STRINGS] \r\n0001=x\r\n", u"x"_s);
        row("blanks around key and value", head + " \t0001\t =  \"a b\" \t\r\n", u"a b"_s);
        row("single quotes", head + "0001='a'\r\n", u"a"_s);
        row("a lone quote stays", head + "0001=\"\r\n", u"\""_s);
        row("first entry wins", head + "0001=a\r\n0001=b\r\n", u"a"_s);
        row("first section of the name wins", head + "[x]\r\n[Strings]\r\n0001=b\r\n", QString());
        row("longer key", head + "00011=a\r\n0001=b\r\n", u"b"_s);
        row("comment", head + "  ;0001=a\r\n0001=b ; c\r\n", u"b ; c"_s);
        row("bare line feeds, no last line end", "[Strings]\n0001=a", u"a"_s);
        row("up to the first NUL", head + QByteArrayLiteral("0001=ab\0cd\r\n"), u"ab"_s);
        row("511 characters", head + "0001=\"" + QByteArray(600, 'a') + "\"\r\n", QString(511, u'a'));
    }

    void profile() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, key);
        put(u"a.lng"_s, bytes);
        QTEST(ReadIniString(path(u"a.lng"_s), u"Strings"_s, key).value(), "value");
    }

    void largeFilesAreScannedLineByLine() {
        const QList<std::pair<QByteArray, QString>> files = {
            {"[other]\r\nKey=\"1\"\r\n[Strings]\r\nKey=\"2\"\r\n", u"1"_s}, // whatever the section
            {"Key2=\"abc\"\r\nKey=\"x\"\r\n", u"\"abc"_s},                  // merely begins with the key
            {"a Key=\"1\" Key=\"2\"\r\nKey=\"3\"\r\n", u"3"_s},             // the key within a line
            {"Key=a\r\nKey=\"b\"\r\n", QString()},
            {"Key=\"abc\"\nKey=\"x\"\n", u"abc"_s}};
        for (const auto& [lines, value] : files) {
            put(u"a.lng"_s, QByteArray(largestProfileBytes, ';') + "\r\n" + lines);
            QCOMPARE(ReadIniString(path(u"a.lng"_s), u"Strings"_s, u"Key"_s).value(), value);
        }
    }

    void lineScanStartsAbove64000Bytes() {
        const QByteArray head = "[Strings]\r\nkey=\"abc\"\r\n;";
        put(u"a.lng"_s, head + QByteArray(64000 - head.size(), 'x'));
        QCOMPARE(ReadIniString(path(u"a.lng"_s), u"Strings"_s, u"KEY"_s).value(), u"abc"_s);
        put(u"a.lng"_s, head + QByteArray(64001 - head.size(), 'x'));
        QCOMPARE(ReadIniString(path(u"a.lng"_s), u"Strings"_s, u"KEY"_s).value(), QString());
    }

    void writingKeepsOtherLinesToTheByte() {
        const QList<std::pair<QByteArray, QByteArray>> files = {
            {"[Language]\r\nCurrentLanguage=\"old\"\r\nb=1\r\n",
             "[Language]\r\nCurrentLanguage=new\r\nb=1\r\n"},
            {QByteArrayLiteral("\xFF\0;\r\n\n[language]\n currentLANGUAGE = old\t\nCurrentLanguage=2"),
             QByteArrayLiteral("\xFF\0;\r\n\n[language]\n currentLANGUAGE = new\t\nCurrentLanguage=2")},
            {"[Language]\na=1\n\n[x]\nCurrentLanguage=2\n", // added behind the section's last entry
             "[Language]\na=1\nCurrentLanguage=new\r\n\n[x]\nCurrentLanguage=2\n"},
            {"a=1\n[x]\nb=2", "a=1\n[x]\nb=2\r\n[Language]\r\nCurrentLanguage=new\r\n"}};
        for (const auto& [before, after] : files) {
            put(u"LangSetting.ini"_s, before);
            support().writeSettingLanguage(u"new"_s);
            QCOMPARE(bytesOf(u"LangSetting.ini"_s), after);
            QCOMPARE(support().settingLanguage().value(), u"new"_s);
        }
    }

    void passOverAWindow() {
        current_ = u"English"_s;
        put(u"English.lng"_s,
            "[frmView]\r\nlbl.Caption=\"wrong\"\r\n[frmMain]\r\ncmdEsci.Caption=\"Exit\"\r\n"
            "ImgLingua(0).ToolTipText=\"zero\"\r\nImgLingua(1).ToolTipText=\"one\"\r\n"
            "ImgLingua.Tag=\"no\"\r\nlbl.Tag=\"\"\r\ntab.TabCaption(1)=\"second\"\r\n");
        ValueWindow window;
        ValueControl& button = window.add(u"cmdEsci"_s);
        ValueControl& first = window.add(u"ImgLingua"_s, 0);
        ValueControl& second = window.add(u"ImgLingua"_s, 1);
        ValueControl& label = window.add(u"lbl"_s);
        ValueControl& tab = window.add(u"tab"_s);
        second.caption_.reset();
        tab.tabs_ = {u"designed"_s, u"designed"_s};
        for (int round = 0; round < 2; ++round) { // a second pass changes nothing more
            support().MLSApplyLanguage(window);
            QCOMPARE(window.caption + window.tag, QString());
            QCOMPARE(*button.caption_ + *button.toolTip_ + *button.tag_, u"Exitdesigneddesigned"_s);
            QCOMPARE(*first.toolTip_ + *first.tag_ + *second.toolTip_, u"zerodesignedone"_s);
            QCOMPARE(*label.caption_ + *label.tag_, u"designeddesigned"_s);
            QCOMPARE(tab.tabs_, QStringList({QString(), u"second"_s}));
        }
    }
};

QTEST_GUILESS_MAIN(tst_language)
#include "tst_language.moc"
