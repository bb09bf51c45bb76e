// SPDX-License-Identifier: MIT

#include "drawing/Typeface.h"

#include "drawing/Kept.h"

#include <QHash>

#include <tuple>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

struct FontKey {
    QString family;
    int weight;
    bool italic;
    int master;
    bool isLone;

    bool operator==(const FontKey&) const = default;
};

size_t qHash(const FontKey& key, size_t seed = 0)
{
    return qHashMulti(seed, key.family, key.weight, key.italic, key.master, key.isLone);
}

QFont makeFont(const FontKey& key)
{
    QFont font;
    QStringList families{key.family};
    // Sawarabi Mincho last: without it kanji in user texts would fall to a brush font that happens to be installed.
    for (const QString& fallback : {u"Inter"_s, u"DejaVu Sans"_s, u"Sawarabi Mincho"_s}) {
        if (!families.contains(fallback))
            families.append(fallback);
    }
    font.setFamilies(families);
    font.setWeight(static_cast<QFont::Weight>(key.weight));
    font.setItalic(key.italic);
    font.setPixelSize(key.master);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(true);
    if (key.isLone)
        font.setStyleStrategy(QFont::NoFontMerging);
    return font;
}

const QFont& keptFont(const FontKey& key)
{
    // A font, its glyphs and what is shaped of them belong to the thread that made them, as they do in the toolkit.
    thread_local Kept<QHash<FontKey, QFont>> fonts;
    auto found = fonts.find(key);
    if (found == fonts.end())
        found = fonts.insert(key, makeFont(key));
    return *found;
}

} // namespace

const QFont& fontOf(const Typeface& face, int master)
{
    return keptFont({face.family, face.weight, face.italic, master, false});
}

const QFont& loneFontOf(const Typeface& face, int master)
{
    return keptFont({face.family, face.weight, face.italic, master, true});
}

} // namespace ambrelle
