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
        EXPECT_EQ(QSet<WidgetKind>(members.begin(), members.end()).size(), members.size());
        EXPECT_LE(shortLabel(category).size(), 8);
        if (category != WidgetCategory::all)
            found.unite(QSet<WidgetKind>(members.begin(), members.end()));
    }
    EXPECT_EQ(found.size(), 20);
    EXPECT_EQ(kinds(WidgetCategory::all).size(), 20);
    EXPECT_LE(description(WidgetKind::memory).size(), 15);
}

TEST(CatalogueTest, AppearancePartnersPairALightSkinWithADarkOne)
{
    int paired = 0;
    int light = 0;
    for (const Skin skin : allCases<Skin>()) {
        light += isLight(skin);
        if (const auto partner = appearancePartner(skin)) {
            ++paired;
            EXPECT_EQ(appearancePartner(*partner), skin);
            EXPECT_NE(isLight(*partner), isLight(skin));
        }
    }
    EXPECT_EQ(paired, 6);
    EXPECT_EQ(light, 8);
}

TEST(CatalogueTest, AccentListsFollowTheSkinThenItsLightness)
{
    const auto names = [](Skin skin) {
        QStringList list;
        for (const AccentChoice& choice : accentChoices(skin))
            list << choice.name;
        return list.join(u' ');
    };
    EXPECT_EQ(accentChoices(Skin::cockpit), accentChoices(Skin::apollo));
    EXPECT_EQ(names(Skin::glass), u"Original Amber Coral Mint Sky Violet Rose");
    EXPECT_EQ(names(Skin::lumen), u"Original Crimson Cobalt Forest Tangerine Plum");
    EXPECT_EQ(names(Skin::hifi), u"Original Ice Red LED Green Violet");
    for (const Skin skin : allCases<Skin>()) {
        const QList<AccentChoice> choices = accentChoices(skin);
        EXPECT_FALSE(choices.front().color);
        QSet<QString> seen;
        for (const AccentChoice& choice : choices.mid(1)) {
            ASSERT_TRUE(choice.color && choice.color->isValid());
            seen.insert(choice.color->name());
        }
        EXPECT_EQ(seen.size(), choices.size() - 1) << "two swatches look the same";
        EXPECT_EQ(supportsAccent(skin), skin != Skin::aero && skin != Skin::classic);
    }
}

} // namespace
} // namespace ambrelle
