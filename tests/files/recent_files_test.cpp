// The four recent files: how opening reorders them.

#include "files/recent_files.h"

#include "files/path_text.h"

#include <gtest/gtest.h>

#include <map>

namespace kvelder::test {
namespace {

using MemoryStore = RecentFilesInMemory;

MemoryStore store_of(std::initializer_list<std::string> paths)
{
    MemoryStore s;
    int k = 0;
    for (const std::string& p : paths) {
        s.keys[++k] = path_from_utf8(p);
    }
    return s;
}

std::vector<std::string> paths(const MemoryStore& s)
{
    std::vector<std::string> out;
    for (const std::string& caption : ShowRecentFiles(s)) {
        out.push_back(utf8_text(recent_file_path(caption)));
    }
    return out;
}

using Paths = std::vector<std::string>;

TEST(RecentFiles, AFreshUserHasNoneAndOpeningReordersTheList)
{
    MemoryStore fresh;
    EXPECT_TRUE(ShowRecentFiles(fresh).empty());
    fresh.keys[2] = "/a.kvel"; // without a first entry the list stays hidden
    EXPECT_TRUE(ShowRecentFiles(fresh).empty());

    MemoryStore s = store_of({"A", "B", "C", "D"});
    MoveRecentFile(s, "A");
    EXPECT_EQ(paths(s), (Paths{"A", "B", "C", "D"}));
    MoveRecentFile(s, "C");
    EXPECT_EQ(paths(s), (Paths{"C", "A", "B", "D"}));
    MoveRecentFile(s, "D");
    EXPECT_EQ(paths(s), (Paths{"D", "C", "A", "B"}));
    MoveRecentFile(s, "E");
    EXPECT_EQ(paths(s), (Paths{"E", "D", "C", "A"}));
    EXPECT_EQ(s.keys.size(), 4U); // the fourth drops out, no fifth key

    // Names beyond the code page come back from their captions letter for letter.
    const std::string loft = "bjelke p\u00e5 loftet.kvel", euro = "B\u201312 \u20ac.kvel";
    MemoryStore named = store_of({loft, euro});
    MoveRecentFile(named, path_from_utf8("\u03a9-bjelke.kvel"));
    MoveRecentFile(named, path_from_utf8(euro));
    EXPECT_EQ(paths(named), (Paths{euro, "\u03a9-bjelke.kvel", loft}));
}

} // namespace
} // namespace kvelder::test
