#include "importer/Typography.h"
#include <gtest/gtest.h>

namespace {

struct Row
{
    const char* name;
    const char* before;
    const char* after;
};

class Typography : public testing::TestWithParam<Row>
{
};

} // namespace

TEST_P(Typography, IsMended)
{
    EXPECT_EQ(mendTypography(GetParam().before), GetParam().after);
    EXPECT_EQ(mendTypography(GetParam().after), GetParam().after) << "A second run changes nothing.";
}

INSTANTIATE_TEST_SUITE_P(
    WholePlaces, Typography,
    testing::Values(
        Row{"pointAfterBracket", "[Lousa] :Quem apaga", "[Lousa]: Quem apaga"},
        Row{"commaBetweenBrackets", "mil [chegaram] ,[e] ao apito", "mil [chegaram], [e] ao apito"},
        Row{"hyphensInBrackets", "Pintando [-as] ,e secando [-lhes] ,que",
            "Pintando[-as], e secando[-lhes], que"},
        Row{"bracketsInParentheses", "e que ( [disse ela] ) este", "e que ([disse ela]) este"},
        Row{"blankAfterHyphen", "levai [- os] daqui", "levai[-os] daqui"},
        Row{"hyphenBeforeBracket", "Empresta- [me] ,se tens", "Empresta-[me], se tens"},
        Row{"hyphenAfterBracket", "[Serve] -te bem", "[Serve]-te bem"},
        Row{"blankInBracket", "dos barcos[ que vendeu] .", "dos barcos [que vendeu]."},
        Row{"letterAfterParenthesis", "ventos. (Pausa)Porque", "ventos. (Pausa) Porque"},
        Row{"apostrophesAsQuotes", "este: 'Rema', e ele rema", "este: ‘Rema’, e ele rema"},
        Row{"hyphensAsDashes", "migalhas! - ri o padeiro - Varram", "migalhas! – ri o padeiro – Varram"},
        Row{"quoteBracketComma", "respondeu: “ [Hoje] ,só sabão", "respondeu: “[Hoje], só sabão"}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    EachStep, Typography,
    testing::Values(
        Row{"Nothing", "", ""}, Row{"OnlyBlanks", "   ", ""}, Row{"InvalidUtf8", "a  \xff", "a  \xff"},
        Row{"Step1_noBreakSpaces", "\u00A0a\u00A0 \u00A0b\u00A0", "a b"},
        Row{"Step1_ends", "  na varanda  ", "na varanda"}, Row{"Step2_start", "'Rema", "‘Rema"},
        Row{"Step2_acuteAccent", "d\u00B4água", "d’água"},
        Row{"Step2_afterBlank", "disse: 'Rema'", "disse: ‘Rema’"},
        Row{"Step2_afterBracket", "['Rema']", "[‘Rema’]"}, Row{"Step2_afterQuote", "“'Rema'”", "“‘Rema’”"},
        Row{"Step2_twoInARow", "diz ''sim", "diz ‘’sim"}, Row{"Step3_start", "- disse", "– disse"},
        Row{"Step3_afterLetter", "disse- ", "disse-"},
        Row{"Step3_notBeforeLetter", "disse -lhe", "disse -lhe"}, Row{"Step4_letter", "diz- lhe", "diz-lhe"},
        Row{"Step4_notBeforePoint", "diz- “lhe”", "diz- “lhe”"}, Row{"Step4_accentedLetter", "dá- ó", "dá-ó"},
        Row{"Step5_notWithoutLetter", "diz [-", "diz [-"},
        Row{"Step5_bracketHyphen", "[diz]  -lhe", "[diz]-lhe"}, Row{"Step6_everyMark", "( [ “ ‘ a", "([“‘a"},
        Row{"Step7_everyMark", "a , . ; : ? ! ) ] ” ’", "a,.;:?!)]”’"},
        Row{"Step8_parenthesis", "rede(isto", "rede (isto"}, Row{"Step8_bracket", "rede[isto", "rede [isto"},
        Row{"Step8_notBeforeHyphen", "dá[-lhe]", "dá[-lhe]"},
        Row{"Step9_letter", "a,b.c;d:e?f!g", "a, b. c; d: e? f! g"},
        Row{"Step9_opening", "a,(b.[c;“d:‘e", "a, (b. [c; “d: ‘e"},
        Row{"Step9_notBeforePoint", "a?!;b", "a?!; b"}, Row{"Step9_notBeforeDigit", "3:16", "3:16"},
        Row{"Step10_opening", "[a](b)“c”[d", "[a] (b) “c” [d"},
        Row{"Step10_notAfterApostrophe", "d’água", "d’água"}),
    [](const auto& row) { return std::string(row.param.name); });
