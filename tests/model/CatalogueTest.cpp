// SPDX-License-Identifier: MIT

#include "model/Skin.h"
#include "model/WidgetCategory.h"

#include <QSet>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

template <typename E> void expectNamesToReadBack()
{
    QSet<QString> names;
    for (const E each : allCases<E>()) {
        const QString raw = rawValue(each);
        EXPECT_EQ(parse<E>(raw), each) << raw.toStdString();
        EXPECT_FALSE(parse<E>(raw.toUpper())) << raw.toStdString();
        EXPECT_FALSE(title(each).isEmpty()) << raw.toStdString();
        names.insert(raw);
    }
    EXPECT_EQ(static_cast<std::size_t>(names.size()), allCases<E>().size()) << "two cases share a name";
    EXPECT_FALSE(parse<E>(u""));
}

TEST(CatalogueTest, EveryStoredNameReadsBackAsItself)
{
    expectNamesToReadBack<WidgetKind>();
    expectNamesToReadBack<WidgetCategory>();
    expectNamesToReadBack<WidgetScale>();
    expectNamesToReadBack<Backdrop>();
    expectNamesToReadBack<WidgetLayer>();
    expectNamesToReadBack<OverlapBehavior>();
    expectNamesToReadBack<Skin>();
    expectNamesToReadBack<ThemeGroup>();
    EXPECT_FALSE(parse<Skin>(u"minimal")) << "a group, not a skin";
}

TEST(CatalogueTest, ScalesCycle)
{
    WidgetScale scale = WidgetScale::small;
    for (const WidgetScale each : allCases<WidgetScale>()) {
        EXPECT_EQ(scale, each);
        scale = next(scale);
    }
    EXPECT_EQ(scale, WidgetScale::small);
}

TEST(CatalogueTest, EveryKindCanBeFoundThroughAFilter)
{
    QSet<WidgetKind> found;
    for (const WidgetCategory category : allCases<WidgetCategory>()) {
        const QList<WidgetKind> members = kinds(category);
        const QSet<WidgetKind> different(members.begin(), members.end());
        EXPECT_EQ(different.size(), members.size());
        EXPECT_LE(shortLabel(category).size(), 8) << "it would be cut";
        if (category == WidgetCategory::all)
            EXPECT_EQ(static_cast<std::size_t>(different.size()), allCases<WidgetKind>().size());
        else
            found.unite(different);
    }
    EXPECT_EQ(static_cast<std::size_t>(found.size()), allCases<WidgetKind>().size());
}

TEST(CatalogueTest, AppearancePartnersPairALightSkinWithADarkOne)
{
    for (const Skin skin : allCases<Skin>()) {
        if (const auto partner = appearancePartner(skin)) {
            EXPECT_EQ(appearancePartner(*partner), skin);
            EXPECT_NE(isLight(*partner), isLight(skin));
        }
    }
}

TEST(CatalogueTest, NoTwoSwatchesOfASkinLookTheSame)
{
    for (const Skin skin : allCases<Skin>()) {
        const QList<AccentChoice> choices = accentChoices(skin);
        EXPECT_FALSE(choices.front().color) << "the first one is the skin's own";
        QSet<QString> seen;
        for (const AccentChoice& choice : choices.mid(1)) {
            ASSERT_TRUE(choice.color && choice.color->isValid());
            seen.insert(choice.color->name());
        }
        EXPECT_EQ(seen.size(), choices.size() - 1) << rawValue(skin).data();
    }
}

} // namespace
} // namespace ambrelle
