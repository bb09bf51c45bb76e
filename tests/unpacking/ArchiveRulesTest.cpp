// SPDX-License-Identifier: MIT

#include "unpacking/ArchiveRules.h"

#include <gtest/gtest.h>

#include <vector>

namespace ambrelle {

namespace {

ArchiveItem fileNamed(const std::string& path, std::int64_t bytes = 1)
{
    return {.path = path, .kind = ArchiveItem::Kind::file, .mode = 0644, .bytes = bytes};
}

ArchiveItem folderNamed(const std::string& path)
{
    return {.path = path, .kind = ArchiveItem::Kind::folder, .mode = 0755};
}

/// Why the archive is refused, at the last of the items or after it.
std::string faultOf(const std::vector<ArchiveItem>& items, const ArchiveBounds& bounds = {})
{
    ArchiveRules rules(bounds);
    std::string fault;
    for (const ArchiveItem& item : items) {
        EXPECT_EQ(fault, "") << "before " << item.path;
        fault = rules.admit(item);
    }
    return fault.empty() ? rules.close() : fault;
}

} // namespace

TEST(ArchiveRulesTest, PathsMeanTheSameEverywhere)
{
    for (const std::string& good : {std::string("A"), std::string("A/b.c_d+e@f(g) h-i"), std::string("A/.hidden"),
             std::string("A/..b"), std::string("a/b/c/d/e/f/g/h/i/j/k/l"), "A/" + std::string(238, 'x')})
        EXPECT_EQ(faultOfPath(good), "") << good;
    for (const std::string& bad :
        {std::string(), std::string("/"), std::string("/A"), std::string("A//b"), std::string("A/"), std::string("."),
            std::string("./A"), std::string("A/../b"), std::string("A/.."), std::string("A/b."), std::string("A/b "),
            std::string("A/ b"), std::string("A/-rf"), std::string("-A"), std::string("A\\b"), std::string("C:A"),
            std::string("A/b\nc"), std::string("A/b\tc"), std::string("A/b\x7f"), std::string("A/\xc3\xa4"),
            std::string("A/\xe2\x80\xae"), std::string("A/b*"), std::string("A/$b"), std::string("A/b\0c", 5),
            std::string("a/b/c/d/e/f/g/h/i/j/k/l/m"), "A/" + std::string(239, 'x')})
        EXPECT_NE(faultOfPath(bad), "") << bad;
}

TEST(ArchiveRulesTest, ModesSayOnlyWhoRunsIt)
{
    for (const auto& [mode, plain] : {std::pair(0644U, 0644U), {0600U, 0644U}, {0666U, 0644U}, {0000U, 0644U},
             {0755U, 0755U}, {0700U, 0755U}, {0100U, 0755U}, {0777U, 0755U}, {0611U, 0644U}}) {
        ArchiveItem item = fileNamed("A/b");
        item.mode = mode;
        EXPECT_EQ(plainMode(item), plain) << std::oct << mode;
        item.kind = ArchiveItem::Kind::folder;
        EXPECT_EQ(plainMode(item), 0755U) << std::oct << mode;
    }
    for (const unsigned mode : {04755U, 02755U, 01777U, 0100644U}) {
        ArchiveItem item = fileNamed("A/b");
        item.mode = mode;
        EXPECT_NE(faultOf({item}), "") << std::oct << mode;
    }
}

TEST(ArchiveRulesTest, OnlyPlainFilesAndFoldersAreTaken)
{
    EXPECT_EQ(faultOf({folderNamed("A/"), fileNamed("A/b")}), "");
    EXPECT_NE(faultOf({}), "") << "nothing in it";
    ArchiveItem item = fileNamed("A/b");
    item.kind = ArchiveItem::Kind::other;
    EXPECT_NE(faultOf({item}), "");
    item = fileNamed("A/b");
    item.isLink = true;
    EXPECT_NE(faultOf({item}), "");
    item = fileNamed("A/b");
    item.isEncrypted = true;
    EXPECT_NE(faultOf({item}), "");
    item = folderNamed("A/b");
    item.bytes = 5;
    EXPECT_NE(faultOf({item}), "") << "a folder with content";
    EXPECT_NE(faultOf({fileNamed("A/b/")}), "") << "a file that looks like a folder";
}

TEST(ArchiveRulesTest, EveryPlaceIsTakenOnce)
{
    EXPECT_EQ(faultOf({fileNamed("A/b/c"), folderNamed("A/b/"), folderNamed("A"), fileNamed("A/b/d")}), "");
    for (const std::vector<ArchiveItem>& items : std::vector<std::vector<ArchiveItem>>{
             {fileNamed("A/b"), fileNamed("A/b")},
             {fileNamed("A/b"), fileNamed("A/B")},
             {folderNamed("A/b"), folderNamed("A/b/")},
             {folderNamed("A/"), fileNamed("a/b")},
             {fileNamed("A/lib/c"), fileNamed("A/Lib/d")},
             {fileNamed("A/b"), fileNamed("A/b/c")},
             {fileNamed("A/b/c"), fileNamed("A/b")},
             {fileNamed("A/b/c/d"), fileNamed("A/B")},
             {folderNamed("A/b"), fileNamed("A/b")},
             {fileNamed("A/b"), fileNamed("C/b")},
             {fileNamed("A/b"), folderNamed("C/")},
             {fileNamed("A")},
         })
        EXPECT_NE(faultOf(items), "") << items.front().path << ' ' << items.back().path;
}

TEST(ArchiveRulesTest, BoundsAreReachedButNotPassed)
{
    const ArchiveBounds bounds{.items = 3, .fileBytes = 100, .allBytes = 150};
    EXPECT_EQ(faultOf({fileNamed("A/a", 100), fileNamed("A/b", 50), fileNamed("A/c", 0)}, bounds), "");
    EXPECT_NE(faultOf({fileNamed("A/a"), fileNamed("A/b"), fileNamed("A/c"), fileNamed("A/d")}, bounds), "");
    EXPECT_NE(faultOf({fileNamed("A/a", 101)}, bounds), "");
    EXPECT_NE(faultOf({fileNamed("A/a", 100), fileNamed("A/b", 51)}, bounds), "");
    EXPECT_NE(faultOf({fileNamed("A/a", -1)}, bounds), "");
    EXPECT_NE(faultOf({fileNamed("A/a", INT64_MAX)}), "");
    EXPECT_NE(faultOf({fileNamed("A/a", 100), fileNamed("A/b", INT64_MAX)}), "");
    ArchiveRules rules;
    rules.admit(folderNamed("A"));
    rules.admit(fileNamed("A/a", 7));
    rules.admit(fileNamed("A/b", 8));
    EXPECT_EQ(rules.bytes(), 15);
}

} // namespace ambrelle
