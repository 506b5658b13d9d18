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
    void profile() {
        const QByteArray head = "[Strings]\r\n";
        for (const auto& [bytes, value] :
             {std::pair(" \t[STRINGS] \r\nnAmE=x\r\n"_ba, u"x"_s),
              {head + " \tname\t =  \"a b\" \t\r\n", u"a b"_s},
              {head + "name='a'\r\n", u"a"_s},
              {head + "name=\"\r\n", u"\""_s}, // a lone quote stays
              {head + "name=a\r\nname=b\r\n", u"a"_s},
              {head + "[x]\r\n[Strings]\r\nname=b\r\n", QString()}, // the first section of its name
              {head + "name1=a\r\nname=b\r\n", u"b"_s},
              {head + "  ;name=a\r\nname=b ; c\r\n", u"b ; c"_s},
              {"[Strings]\nname=a", u"a"_s},
              {head + "name=ab\0cd\r\n"_ba, u"ab"_s},
              {"\xEF\xBB\xBF[Strings]\r\nname=a\r\n"_ba, u"a"_s}, // a byte order mark
              {head + "name=\"Cos\xC3\xAC\"\r\n", u"Così"_s},     // UTF-8
              {head + "name=\xC3\xAC\r\nb=\xEC\r\n", u"Ã¬"_s},    // but not throughout
              {head + "name=\"" + QByteArray("\xC3\xA8").repeated(600) + "\"\r\n", QString(511, u'è')},
              {head + "name=\"" + QByteArray(600, 'a') + "\"\r\n", QString(511, u'a')}}) {
            put(u"a.lng"_s, bytes);
            QCOMPARE(ReadIniString(path(u"a.lng"_s), u"Strings"_s, u"name"_s).value(), value);
        }
    }

    void largeFilesAreScannedLineByLine() {
        const QList<std::pair<QByteArray, QString>> files = {
            {"[other]\r\nKey=\"1\"\r\n[Strings]\r\nKey=\"2\"\r\n", u"1"_s}, // whatever the section
            {"Key2=\"abc\"\r\nKey=\"x\"\r\n", u"\"abc"_s},                  // merely begins with the key
            {"a Key=\"1\" Key=\"2\"\r\nKey=\"3\"\r\n", u"3"_s},             // the key within a line
            {"Key=a\r\nKey=\"b\"\r\n", QString()},
            {"Key=\"abc\"\nKey=\"x\"\n", u"abc"_s},
            {"Key=\"\xC3\xA8\"\n", u"è"_s},
            {"Key=\"\xC3\xA8\"\n\xE8", u"Ã¨"_s}};
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
        put(u"a.lng"_s, "\xEF\xBB\xBFkey=\"abc\"\r\n;" + QByteArray(64000, 'x')); // the mark hides no line
        QCOMPARE(ReadIniString(path(u"a.lng"_s), u"Strings"_s, u"key"_s).value(), u"abc"_s);
    }

    void writingKeepsOtherLinesToTheByte() {
        const QList<std::pair<QByteArray, QByteArray>> files = {
            {"[Language]\r\nCurrentLanguage=\"old\"\r\nb=1\r\n",
             "[Language]\r\nCurrentLanguage=\xC8\r\nb=1\r\n"},
            {QByteArrayLiteral("\xFF\0;\r\n\n[language]\n currentLANGUAGE = old\t\nCurrentLanguage=2"),
             QByteArrayLiteral("\xFF\0;\r\n\n[language]\n currentLANGUAGE = \xC8\t\nCurrentLanguage=2")},
            {"[Language]\na=1\n\n[x]\nCurrentLanguage=2\n", // added behind the section's last entry
             "[Language]\na=1\nCurrentLanguage=\xC8\r\n\n[x]\nCurrentLanguage=2\n"},
            {"\xEF\xBB\xBF[Language]\r\n", "\xEF\xBB\xBF[Language]\r\nCurrentLanguage=\xC3\x88\r\n"},
            // In the encoding of the other lines.
            {";\xC3\xA8", ";\xC3\xA8\r\n[Language]\r\nCurrentLanguage=\xC3\x88\r\n"},
            {"\xFF\xFE;\0"_ba, "\xEF\xBB\xBF;\r\n[Language]\r\nCurrentLanguage=\xC3\x88\r\n"},
            {"a=1\n[x]\nb=2", "a=1\n[x]\nb=2\r\n[Language]\r\nCurrentLanguage=\xC8\r\n"}};
        for (const auto& [before, after] : files) {
            put(u"LangSetting.ini"_s, before);
            static_cast<void>(support().writeSettingLanguage(u"È"_s));
            QCOMPARE(bytesOf(u"LangSetting.ini"_s), after);
            QCOMPARE(support().settingLanguage().value(), u"È"_s);
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
