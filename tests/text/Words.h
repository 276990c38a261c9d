#pragma once

#include <array>
#include <string_view>

/// What the sentences of the tests' text are made of: the life of a village by a river, in words of our own.
/// Letters that begin a sentence are made large where they come to stand.
namespace words {

using Word = std::string_view;

inline constexpr std::array<Word, 16> times = {
    "de manhã cedo",   "ao meio-dia",       "à tardinha",       "no inverno",
    "depois da chuva", "antes da colheita", "naquela noite",    "em agosto",
    "na lua nova",     "às três horas",     "dia após dia",     "na véspera da feira",
    "após a vindima",  "outra vez",         "ao romper do sol", "já de volta"};
inline constexpr std::array<Word, 26> people = {
    "o pescador",   "a padeira",  "o ferreiro",         "a tecelã",   "o carteiro", "o barqueiro",
    "a costureira", "o pastor",   "o relojoeiro",       "a viúva",    "o menino",   "a avó",
    "o capitão",    "o músico",   "a lavadeira",        "Teodora",    "Anselmo",    "Quitéria",
    "Baltasar",     "o tanoeiro", "a irmã do ferreiro", "o aprendiz", "o guarda",   "a velha Inês",
    "o sineiro",    "o hortelão"};
inline constexpr std::array<Word, 34> deeds = {"levou a rede",
                                               "abriu o portão",
                                               "pintou a canoa",
                                               "consertou o telhado",
                                               "guardou o trigo",
                                               "contou as ovelhas",
                                               "acendeu a luz da varanda",
                                               "trouxe lenha seca",
                                               "colheu figos",
                                               "perdeu a chave",
                                               "lavou a roupa",
                                               "encheu o cântaro",
                                               "tocou a sanfona",
                                               "cortou o pão",
                                               "plantou uma roseira",
                                               "vendeu dois cabritos",
                                               "escreveu uma carta",
                                               "remendou a vela",
                                               "amarrou o barco",
                                               "assou castanhas",
                                               "esqueceu o chapéu",
                                               "desenhou o vale",
                                               "buscou água na fonte",
                                               "encheu o barril d'água",
                                               "mediu o armário",
                                               "pesou o sal",
                                               "abençoou a canção",
                                               "chamou os cães",
                                               "varreu a casa",
                                               "seguiu a procissão",
                                               "desfez o guarda-sol",
                                               "queimou o almoço",
                                               "ouviu o trovão",
                                               "mandou-lhe um recado"};
inline constexpr std::array<Word, 22> places = {
    "junto ao rio",        "perto da ponte",     "no alto da serra",
    "atrás do moinho",     "na praça",           "à sombra da figueira",
    "na margem do lago",   "debaixo do telhado", "na casa do avô",
    "no fim da rua",       "entre as vinhas",    "na terra do vizinho",
    "no armazém",          "diante da escola",   "à beira-mar",
    "numa nação distante", "ao pé do sino",      "sobre a pedra",
    "no caminho de ferro", "dentro da adega",    "do outro lado do monte",
    "na oficina"};
inline constexpr std::array<Word, 16> tails = {
    ", e ninguém reclamou",     ", porque o vento mudara",     ", embora fizesse frio",
    ", até que a lua apareceu", ", com as mãos geladas",       ", sem dizer palavra",
    ", como fazia o pai",       "; e o cão veio atrás",        ": era o costume antigo",
    ", pois assim lhe pediram", "; nem por isso descansou",    ", que já era tarde",
    ", [mas] voltou depressa",  ", e [tudo] ficou como antes", " (diz-se que [de graça])",
    ", sem ódio nem pressa"};
inline constexpr std::array<Word, 8> ofTheVillage = {
    "Toda a aldeia soube disso",       "A aldeia inteira veio ver",
    "Falou-se disso na aldeia",        "E a aldeia ficou em silêncio",
    "É assim na nossa aldeia",         "Da aldeia vinha o cheiro do pão",
    "Ninguém na aldeia tinha relógio", "Água e lenha não faltavam na aldeia"};
inline constexpr std::array<Word, 8> ofTheMiller = {
    "O MOLEIRO contou os sacos",       "Quem viu o gato do MOLEIRO",    "Disse o MOLEIRO: “Amanhã veremos”",
    "O moleiro fechou as comportas",   "A roda do moleiro partiu-se",   "Ouve o que canta o moleiro",
    "Ao MOLEIRO ninguém deve farinha", "“Mói devagar”, pediu o moleiro"};
inline constexpr std::array<Word, 6> ofLove = {
    "Fê-lo por amor à filha",     "Ouviu-se um clamor no cais",       "Com amor se tempera a sopa",
    "O amor não cabe no alforje", "À sombra da amoreira não se paga", "Tudo por amor, nada por pressa"};
inline constexpr std::array<Word, 4> ofTheCousins = {"Olinda dançou com o noivo", "A tia Olinda não veio",
                                                     "Ivone sabia o segredo", "Perguntem à Ivone"};
/// Without the letter that nearly every verse holds.
inline constexpr std::array<Word, 4> plain = {"O galo cantou no muro.", "A chuva vinha do sul.",
                                              "Havia pão fino na mala.", "O sino tocou, cansado."};
inline constexpr std::array<Word, 6> ends = {".", ".", ".", ";", "!", "?"};

} // namespace words
