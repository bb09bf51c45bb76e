// SPDX-License-Identifier: MIT

#include "window/settings/SettingsIndex.h"
#include "window/frame/SearchWords.h"
#include "window/settings/SettingsRow.h"

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

TEST(SettingsIndexTest, FindsARowByEachWordOfItsTexts)
{
    const RowText row{
        .name = u"Temperature"_s, .caption = u"À la carte"_s, .spoken = u"Hidden"_s, .keywords = {u"celsius"_s}};
    const std::pair<QString, bool> searches[] = {{u"temp"_s, true}, {u"CELSIUS  temperature"_s, true},
        {u" a la "_s, true}, {u"weather celsius"_s, true}, {u"temperature wind"_s, false}, {u"hidden"_s, false},
        {u"carte celsius x"_s, false}};
    for (const auto& [search, found] : searches)
        EXPECT_EQ(SettingsIndex::matches(row, u"Weather"_s, SearchWords(search)), found) << qPrintable(search);
    EXPECT_TRUE(SearchWords(u"  "_s).isEmpty()) << "spaces are no search";
}

} // namespace
} // namespace ambrelle
