#include "database/Maps.h"
#include "importer/InputError.h"
#include "tools/Samples.h"
#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::string>;

Lines goodLines()
{
    Lines lines = {"MapNumber\tfile\twidth\theight\tMapDesc"};
    for (int i = 1; i <= 11; ++i)
        lines.push_back(std::to_string(i) + "\tmap.png\t800\t600\tMap " + std::to_string(i));
    return lines;
}

std::vector<MapEntry> read(const Lines& lines)
{
    std::string bytes;
    for (const std::string& line : lines)
        bytes += line + "\n";
    return readMapList(bytes, "maps.tsv");
}

std::string complaintAbout(std::size_t line, const std::string& text)
{
    Lines lines = goodLines();
    lines[line - 1] = text;
    return complaint<InputError>([&] { read(lines); });
}

} // namespace

TEST(Maps, ReadsElevenMaps)
{
    const auto maps = read(goodLines());
    ASSERT_EQ(maps.size(), 11u);
    EXPECT_EQ(maps[10].number, 11);
    EXPECT_EQ(maps[10].file, "map.png");
    EXPECT_EQ(maps[10].width, 800);
    EXPECT_EQ(maps[10].height, 600);
    EXPECT_EQ(maps[10].description, "Map 11");
}

TEST(Maps, RefusesMalformedLists)
{
    EXPECT_EQ(complaintAbout(1, "1\tmap.png\t800\t600\tMap"),
              "maps.tsv, line 1: the header line, which begins with MapNumber, is missing.");
    EXPECT_EQ(complaintAbout(3, "3\tmap.png\t800\t600\tMap"),
              "maps.tsv, line 3: map 2 is missing or out of order.");
    EXPECT_EQ(complaintAbout(3, "x\tmap.png\t800\t600\tMap"),
              "maps.tsv, line 3: the map number \"x\" is not a number from 1 to 11.");
    EXPECT_EQ(complaintAbout(3, "2\tmap.png\t0\t600\tMap"),
              "maps.tsv, line 3: the width \"0\" is not a number from 1 to 10000.");
    EXPECT_EQ(complaintAbout(3, "2\tmap.png\t800\t99999999999\tMap"),
              "maps.tsv, line 3: the height \"99999999999\" is not a number from 1 to 10000.");
    EXPECT_EQ(complaintAbout(3, "2\tmap.png\t800\t600"),
              "maps.tsv, line 3: a map is a number, a file, a width, a height and a description.");
    EXPECT_EQ(complaintAbout(3, "2\t\t800\t600\tMap"),
              "maps.tsv, line 3: the map has no file or no description.");
    Lines tooFew = goodLines();
    tooFew.pop_back();
    EXPECT_EQ(complaint<InputError>([&] { read(tooFew); }), "maps.tsv, line 12: map 11 is missing.");
}
