// Writes small pictures of all kinds into the folder that is named, for fuzz_picture to begin with:
//     build/fuzz/fuzz/make_picture_seeds fuzz/corpus/picture

#include "pictures/samples.h"

#include <QDir>
#include <QFile>
#include <cstdio>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

/// Behind the trailer: the times across and down (128 is natural size), the part's corner, its size, a part
/// of it.
void write(const QDir& folder, const QString& name, const QByteArray& gif, const QByteArray& painting) {
    QFile file(folder.filePath(name + u".gif"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(gif + painting) < 0)
        qFatal("%s", qPrintable(file.fileName()));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("Usage: make_picture_seeds FOLDER\n", stderr);
        return 2;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    const QByteArray natural = QByteArray::fromHex("8080202030300302");
    const QByteArray smaller = QByteArray::fromHex("6464202030300507");
    const QByteArray larger = QByteArray::fromHex("a0a0604030300109");
    const QByteArray uneven = QByteArray::fromHex("50b0202010200101");

    write(folder, u"plain"_s, makeGif(recipe({61, 47}, 2, Packing::Clearing)), smaller);
    write(folder, u"colours-16"_s, makeGif(recipe({40, 30}, 16, Packing::Deferred)), larger);
    write(folder, u"colours-256"_s, makeGif(recipe({20, 15}, 200, Packing::Clearing)), smaller);

    GifRecipe greys = recipe({50, 40}, 8, Packing::Clearing);
    for (std::size_t i = 0; i < greys.colours.size(); ++i)
        greys.colours[i] = static_cast<std::uint32_t>((7 - i) * 0x242424);
    write(folder, u"greys"_s, makeGif(greys), smaller);

    GifRecipe interlaced = recipe({19, 27}, 5, Packing::Clearing);
    interlaced.interlaced = interlaced.moreBlocks = true;
    write(folder, u"interlaced"_s, makeGif(interlaced), uneven);

    GifRecipe placed = recipe({32, 25}, 7, Packing::Clearing);
    placed.screen = QSize(40, 30);
    placed.place.moveTo(17, 3); // reaches out
    placed.transparent = std::uint8_t{2};
    write(folder, u"placed"_s, makeGif(placed), natural);
    return 0;
}
