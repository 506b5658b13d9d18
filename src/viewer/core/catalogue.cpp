#include "viewer/core/catalogue.h"

#include "files/system_name.h"
#include "text/code_page.h"
#include "text/strings.h"

#include <QChar>
#include <QStringView>
#include <algorithm>
#include <array>

namespace quarvel {

using namespace Qt::StringLiterals;

Family familyOfOption(int index) {
    switch (index) {
    case 0: return Family::Sid;
    case 1: return Family::Star;
    case 2: return Family::Approach;
    default: return Family::None;
    }
}

QString familyFolderName(Family family) {
    switch (family) {
    case Family::Sid: return u"Sid"_s;
    case Family::Star: return u"Star"_s;
    case Family::Approach: return u"Approach"_s;
    case Family::None: break;
    }
    return {};
}

QString inCapitals(const QString& text) {
    QString capitals = text;
    for (QChar& letter : capitals) {
        const QChar capital = letter.toUpper();
        const bool storable = codePageByte(letter.unicode()).has_value();
        if (codePageByte(capital.unicode()).has_value() == storable) letter = capital;
    }
    return capitals;
}

QStringList chartNames(const QStringList& files) {
    QStringList names;
    for (const QString& file : files) {
        const QString name = inCapitals(readableName(file));
        if (GetExtension(name) == "GIF"_L1) names.append(StripExtension(name));
    }
    return names;
}

int countOtherFormats(const QStringList& files) {
    constexpr std::array formats = {u".pdf",  u".png",  u".jpg", u".jpeg", u".bmp",  u".tif",
                                    u".tiff", u".webp", u".svg", u".djvu", u".heic", u".avif"};
    return static_cast<int>(std::count_if(files.cbegin(), files.cend(), [&formats](const QString& file) {
        return std::any_of(formats.begin(), formats.end(), [&file](const char16_t* format) {
            return file.endsWith(QStringView(format), Qt::CaseInsensitive);
        });
    }));
}

QString chartFileName(const QString& chartName) { return trimBlanks(chartName) + ".gif"_L1; }

} // namespace quarvel
