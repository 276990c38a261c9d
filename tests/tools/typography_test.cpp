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
    PublishedPlaces, Typography,
    testing::Values(Row{"Ps_119_1", "[Álefe] :Bem-aventurados", "[Álefe]: Bem-aventurados"},
                    Row{"Is_30_17", "mil [fugirão] ,[e] ao grito", "mil [fugirão], [e] ao grito"},
                    Row{"Acts_17_3_hyphens", "Declarando [-as] ,e propondo [-lhes] ,que",
                        "Declarando[-as], e propondo[-lhes], que"},
                    Row{"Acts_17_3_brackets", "e que ( [dizia ele] ) este", "e que ([dizia ele]) este"},
                    Row{"Lk_19_27", "trazei [- os] aqui", "trazei[-os] aqui"},
                    Row{"Jb_38_4", "Declara- [me] ,se tens", "Declara-[me], se tens"},
                    Row{"Jb_10_3", "[Parece] -te bem", "[Parece]-te bem"},
                    Row{"Prv_20_25", "dos votos[ que fez] .", "dos votos [que fez]."},
                    Row{"Ps_55_19", "tempos. (Selá)Porque", "tempos. (Selá) Porque"},
                    Row{"Lk_7_8", "este: 'Vai', e ele vai", "este: ‘Vai’, e ele vai"},
                    Row{"Eccl_12_8", "futilidades! - diz o pregador - Tudo",
                        "futilidades! – diz o pregador – Tudo"},
                    Row{"Mt_25_9", "responderam: “ [Não] ,para que", "responderam: “[Não], para que"}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    EachStep, Typography,
    testing::Values(
        Row{"Nothing", "", ""}, Row{"OnlyBlanks", "   ", ""}, Row{"InvalidUtf8", "a  \xff", "a  \xff"},
        Row{"Step1_noBreakSpaces", "\u00A0a\u00A0 \u00A0b\u00A0", "a b"},
        Row{"Step1_ends", "  no princípio  ", "no princípio"}, Row{"Step2_start", "'Vai", "‘Vai"},
        Row{"Step2_acuteAccent", "d\u00B4água", "d’água"},
        Row{"Step2_afterBlank", "disse: 'Vai'", "disse: ‘Vai’"},
        Row{"Step2_afterBracket", "['Vai']", "[‘Vai’]"}, Row{"Step2_afterQuote", "“'Vai'”", "“‘Vai’”"},
        Row{"Step2_twoInARow", "diz ''sim", "diz ‘’sim"}, Row{"Step3_start", "- disse", "– disse"},
        Row{"Step3_afterLetter", "disse- ", "disse-"},
        Row{"Step3_notBeforeLetter", "disse -lhe", "disse -lhe"}, Row{"Step4_letter", "diz- lhe", "diz-lhe"},
        Row{"Step4_notBeforePoint", "diz- “lhe”", "diz- “lhe”"}, Row{"Step4_accentedLetter", "dá- ó", "dá-ó"},
        Row{"Step5_notWithoutLetter", "diz [-", "diz [-"},
        Row{"Step5_bracketHyphen", "[diz]  -lhe", "[diz]-lhe"}, Row{"Step6_everyMark", "( [ “ ‘ a", "([“‘a"},
        Row{"Step7_everyMark", "a , . ; : ? ! ) ] ” ’", "a,.;:?!)]”’"},
        Row{"Step8_parenthesis", "terra(isto", "terra (isto"},
        Row{"Step8_bracket", "terra[isto", "terra [isto"},
        Row{"Step8_notBeforeHyphen", "dá[-lhe]", "dá[-lhe]"},
        Row{"Step9_letter", "a,b.c;d:e?f!g", "a, b. c; d: e? f! g"},
        Row{"Step9_opening", "a,(b.[c;“d:‘e", "a, (b. [c; “d: ‘e"},
        Row{"Step9_notBeforePoint", "a?!;b", "a?!; b"}, Row{"Step9_notBeforeDigit", "3:16", "3:16"},
        Row{"Step10_opening", "[a](b)“c”[d", "[a] (b) “c” [d"},
        Row{"Step10_notAfterApostrophe", "d’água", "d’água"}),
    [](const auto& row) { return std::string(row.param.name); });
