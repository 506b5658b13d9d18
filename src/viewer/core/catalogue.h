#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace quarvel {

/// A procedure family, with the number that the viewer keeps for it (`FamilyMode`).
enum class Family : qint16 { None = 0, Sid = 1, Star = 2, Approach = 3 };

/// The family of an option button's index 0 to 2; None for any other index.
[[nodiscard]] Family familyOfOption(int index);

/// The name of a family's folder inside an airport folder: "Sid", "Star" or "Approach"; empty for None.
[[nodiscard]] QString familyFolderName(Family family);

/// A text in capitals, accented letters included: one capital a letter. A letter stays as it is where its
/// capital is two letters (ß), or lies outside the single-byte code page while the letter lies inside (ƒ, µ)
/// or the other way round (dotless i): so a note that can be stored still can, and a file name in capitals
/// still finds its file.
[[nodiscard]] QString inCapitals(const QString& text);

/// The charts among a folder's files, in the files' order: each name in upper case whose last three
/// characters are GIF, without its last four. Nothing else is filtered.
[[nodiscard]] QStringList chartNames(const QStringList& files);

/// How many of a folder's files may well be charts that no list shows: of a format other than GIF.
[[nodiscard]] int countOtherFormats(const QStringList& files);

/// The file name of a chosen chart (`ChartFile`): without blanks at its ends, followed by ".gif".
[[nodiscard]] QString chartFileName(const QString& chartName);

} // namespace quarvel
