#include "importer/Files.h"
#include "importer/Importer.h"
#include "importer/InputError.h"
#include "importer/Typography.h"
#include "importer/Unicode.h"
#include "tools/Samples.h"
#include <gtest/gtest.h>

namespace {

/// A folder that is gone after the test.
class Importer : public testing::Test
{
protected:
    void SetUp() override { folder = newFolder(); }
    void TearDown() override { std::filesystem::remove_all(folder); }

    std::filesystem::path folder;
};

class ReferenceText : public testing::Test
{
protected:
    void SetUp() override
    {
        if (referenceText().empty())
            GTEST_SKIP() << noReferenceText;
    }

    static const ImportedText& imported()
    {
        static const ImportedText text = importText(referenceText(), ourCorrections);
        return text;
    }
};

std::string lettersAndDigits(const std::string& text)
{
    std::u32string kept;
    const std::u32string characters = fromUtf8(text).value();
    for (const char32_t character : characters) {
        if (isLetter(character) || (character >= U'0' && character <= U'9'))
            kept += character;
    }
    return toUtf8(kept);
}

} // namespace

TEST_F(Importer, AppliesTheRulesAloneWithoutCorrections)
{
    writeFile(folder / "list.tsv", writeVerseList(uniformBible("Fecha a mala ,e volta")));
    const ImportedText text = importText(folder / "list.tsv", {});
    EXPECT_EQ(text.corrections, 0u);
    EXPECT_EQ(text.verses[7].text, "Fecha a mala, e volta");
}

TEST_F(Importer, AppliesTheCorrectionsBeforeTheRules)
{
    writeFile(folder / "list.tsv", writeVerseList(uniformBible("Fecha a mala ,e volta")));
    writeFile(folder / "corrections.tsv", "book\tchapter\tverse\tbefore\tafter\twitness\n"
                                          "Gn\t1\t3\tmala ,e\tmala .E\tspelling\n");
    const ImportedText text = importText(folder / "list.tsv", folder / "corrections.tsv");
    EXPECT_EQ(text.corrections, 1u);
    EXPECT_EQ(text.verses[2].text, "Fecha a mala. E volta");
    EXPECT_EQ(text.verses[3].text, "Fecha a mala, e volta");
}

TEST_F(Importer, RefusesToLeaveAVerseWithoutText)
{
    writeFile(folder / "list.tsv", writeVerseList(uniformBible("x")));
    writeFile(folder / "corrections.tsv",
              "book\tchapter\tverse\tbefore\tafter\twitness\nGn\t1\t3\tx\t\tspelling\n");
    EXPECT_EQ(complaint<InputError>([&] { importText(folder / "list.tsv", folder / "corrections.tsv"); }),
              "Gn:1:3: the corrections and rules leave no text.");
}

TEST_F(Importer, NamesAFileThatCannotBeRead)
{
    const auto missing = folder / "missing.tsv";
    EXPECT_EQ(complaint<InputError>([&] { importText(missing, {}); }),
              "Cannot read " + missing.string() + ".");
    EXPECT_EQ(complaint<InputError>([&] { importText(folder, {}); }), "Cannot read " + folder.string() + ".");
    EXPECT_EQ(complaint<InputError>([] { importText("/dev/zero", {}); }), "Cannot read /dev/zero.");
}

TEST_F(Importer, RefusesAFileThatWouldFillTheMemory)
{
    const std::filesystem::path huge = folder / "huge.tsv";
    writeFile(huge, "");
    std::filesystem::resize_file(huge, std::uintmax_t{8} << 30); // without blocks on the disk
    EXPECT_EQ(complaint<InputError>([&] { importText(huge, {}); }),
              huge.string() + " is larger than 64 MB, which no input is.");
}

TEST_F(Importer, NamesAFileThatCannotBeWritten)
{
    const auto nowhere = folder / "missing" / "list.tsv";
    EXPECT_EQ(complaint<InputError>([&] { writeFile(nowhere, "x"); }),
              "Cannot write " + nowhere.string() + ".");
}

TEST_F(ReferenceText, ComesOutByteForByte)
{
    EXPECT_EQ(imported().corrections, 515u);
    EXPECT_EQ(sha256(writeVerseList(imported().verses)),
              "977b2848297e2cca07927de47ebf0ea2ef69ac4b4527432151336dd400b0a3b9");
}

TEST_F(ReferenceText, IsNotChangedByASecondRunOfTheRules)
{
    for (const Verse& verse : imported().verses)
        ASSERT_EQ(mendTypography(verse.text), verse.text) << verse.key.text();
}

TEST_F(ReferenceText, KeepsEveryLetterAndDigitUnderTheRules)
{
    for (const Verse& verse : readVerseList(readFile(referenceText()), "list"))
        ASSERT_EQ(lettersAndDigits(mendTypography(verse.text)), lettersAndDigits(verse.text))
            << verse.key.text();
}

TEST_F(ReferenceText, DiffersFromThePublishedOneInThisManyVerses)
{
    const auto published = readVerseList(readFile(referenceText()), "list");
    int different = 0;
    for (std::size_t i = 0; i < published.size(); ++i)
        different += published[i].text != imported().verses[i].text;
    EXPECT_EQ(different, 1723);
}
