#include "store/BookCatalog.h"

std::string Book::treeText() const
{
    return std::string(name).append(" -- ").append(abbreviation);
}

std::string Book::prefix() const
{
    return std::string(abbreviation).append(":");
}

namespace {

constexpr std::string_view oldTestament = "Old Testament";
constexpr std::string_view newTestament = "New Testament";
constexpr std::string_view pentateuch = "Pentateuch";
constexpr std::string_view historical = "Historical Books";
constexpr std::string_view poetical = "Poetical Books";
constexpr std::string_view prophetic = "Prophetic Books";
constexpr std::string_view gospels = "The Four Gospels";
constexpr std::string_view paul = "Epistles of St. Paul";
constexpr std::string_view catholic = "Catholic Epistles";

constexpr std::array<Book, 66> books = {{
    {1, "Gênesis", "Gn", oldTestament, pentateuch},
    {2, "Êxodo", "Ex", oldTestament, pentateuch},
    {3, "Levítico", "Lv", oldTestament, pentateuch},
    {4, "Números", "Nm", oldTestament, pentateuch},
    {5, "Deuteronômio", "Dt", oldTestament, pentateuch},
    {6, "Josué", "Jos", oldTestament, historical},
    {7, "Juízes", "Jgs", oldTestament, historical},
    {8, "Rute", "Ru", oldTestament, historical},
    {9, "1 Samuel", "1Sm", oldTestament, historical},
    {10, "2 Samuel", "2Sm", oldTestament, historical},
    {11, "1 Reis", "1Kgs", oldTestament, historical},
    {12, "2 Reis", "2Kgs", oldTestament, historical},
    {13, "1 Crônicas", "1Chr", oldTestament, historical},
    {14, "2 Crônicas", "2Chr", oldTestament, historical},
    {15, "Esdras", "Ezr", oldTestament, historical},
    {16, "Neemias", "Neh", oldTestament, historical},
    {17, "Ester", "Est", oldTestament, historical},
    {18, "Jó", "Jb", oldTestament, poetical},
    {19, "Salmos", "Ps", oldTestament, poetical},
    {20, "Provérbios", "Prv", oldTestament, poetical},
    {21, "Eclesiastes", "Eccl", oldTestament, poetical},
    {22, "Cantares", "Sg", oldTestament, poetical},
    {23, "Isaías", "Is", oldTestament, prophetic},
    {24, "Jeremias", "Jer", oldTestament, prophetic},
    {25, "Lamentações", "Lam", oldTestament, prophetic},
    {26, "Ezequiel", "Ez", oldTestament, prophetic},
    {27, "Daniel", "Dn", oldTestament, prophetic},
    {28, "Oséias", "Hos", oldTestament, prophetic},
    {29, "Joel", "Jl", oldTestament, prophetic},
    {30, "Amós", "Am", oldTestament, prophetic},
    {31, "Obadias", "Ob", oldTestament, prophetic},
    {32, "Jonas", "Jon", oldTestament, prophetic},
    {33, "Miquéias", "Mi", oldTestament, prophetic},
    {34, "Naum", "Na", oldTestament, prophetic},
    {35, "Habacuque", "Hb", oldTestament, prophetic},
    {36, "Sofonias", "Zep", oldTestament, prophetic},
    {37, "Ageu", "Hg", oldTestament, prophetic},
    {38, "Zacarias", "Zec", oldTestament, prophetic},
    {39, "Malaquias", "Mal", oldTestament, prophetic},
    {40, "Mateus", "Mt", newTestament, gospels},
    {41, "Marcos", "Mk", newTestament, gospels},
    {42, "Lucas", "Lk", newTestament, gospels},
    {43, "João", "Jn", newTestament, gospels},
    {44, "Atos", "Acts", newTestament, ""},
    {45, "Romanos", "Rom", newTestament, paul},
    {46, "1 Coríntios", "1Cor", newTestament, paul},
    {47, "2 Coríntios", "2Cor", newTestament, paul},
    {48, "Gálatas", "Gal", newTestament, paul},
    {49, "Efésios", "Eph", newTestament, paul},
    {50, "Filipenses", "Phil", newTestament, paul},
    {51, "Colossences", "Col", newTestament, paul},
    {52, "1 Tessalonicenses", "1Thes", newTestament, paul},
    {53, "2 Tessalonicenses", "2Thes", newTestament, paul},
    {54, "1 Timóteo", "1Tm", newTestament, paul},
    {55, "2 Timóteo", "2Tm", newTestament, paul},
    {56, "Tito", "Ti", newTestament, paul},
    {57, "Filemom", "Phlm", newTestament, paul},
    {58, "Hebreus", "Heb", newTestament, paul},
    {59, "Tiago", "Jms", newTestament, catholic},
    {60, "1 Pedro", "1Pt", newTestament, catholic},
    {61, "2 Pedro", "2Pt", newTestament, catholic},
    {62, "1 João", "1Jn", newTestament, catholic},
    {63, "2 João", "2Jn", newTestament, catholic},
    {64, "3 João", "3Jn", newTestament, catholic},
    {65, "Judas", "Jude", newTestament, catholic},
    {66, "Apocalipse", "Rv", newTestament, ""},
}};

} // namespace

const std::array<Book, 66>& bookCatalog()
{
    return books;
}
