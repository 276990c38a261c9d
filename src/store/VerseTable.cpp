#include "store/VerseTable.h"

// How a query runs. SQLite compiles the SQL text of a DataSource, where NewTestament is a view of
// Database.cpp over this virtual table, and asks the table for its rows:
//
//     planQuery()      which conditions the table can use, and at what cost
//        │             the plan: a letter for each of them
//     startRows()      the same conditions with their values
//        │
//     VerseCursor      walks the rows that fulfil them all, in order
//        ├─ KeyIndex         rows whose key has a known beginning
//        ├─ TextSearch       rows whose text matches a pattern, by a sweep over all texts
//        └─ LikePattern      whether one key or text matches
//              └─ LetterCase      which letters are two cases of one
//
// The letters of a plan, and what VerseCursor does with the value:
//
//     =  VerseNumber = value        both ends of the range of rows, by binary search
//     <  VerseNumber < value        its end
//     (  VerseNumber <= value       its end
//     >  VerseNumber > value        its beginning
//     )  VerseNumber >= value       its beginning
//     k  VerseId = value            only keys that begin so
//     K  VerseId LIKE value         the same for the pattern's beginning; then every such key is matched
//     T  KJVerseText LIKE value     only texts that match
//
// SQLite tests conditions of the first six kinds once more on each row, and all others itself: NOT LIKE, and
// a LIKE within an OR of which it tests every row, by calling like() (LikeFunction.cpp), which uses
// TextSearch too.

#include "store/Sqlite.h"
#include "store/VerseCursor.h"

namespace {

enum Column { VerseId, VerseNumber, KJVerseText };

/// What VerseCursor can do with a condition: the letters of a plan.
enum Use : char {
    NumberEqual = '=',
    NumberBelow = '<',
    NumberUpTo = '(',
    NumberAbove = '>',
    NumberFrom = ')',
    KeyEqual = 'k',
    KeyLike = 'K',
    TextLike = 'T',
    None = '\0'
};

struct Table : sqlite3_vtab
{
    const Verses* verses;
};

struct Cursor : sqlite3_vtab_cursor
{
    const Verses& verses;
    VerseCursor rows;

    explicit Cursor(const Verses& all)
        : sqlite3_vtab_cursor{}
        , verses(all)
        , rows(all)
    {
    }
};

Cursor* asCursor(sqlite3_vtab_cursor* cursor)
{
    return static_cast<Cursor*>(cursor);
}

/// Leaves an error's text where SQLite looks for it, and gives its number.
int fail(sqlite3_vtab* table, const DataError& error)
{
    sqlite3_free(table->zErrMsg);
    table->zErrMsg = sqlite3_mprintf("%s", error.what());
    return error.number();
}

/// xConnect: declares the columns, when a statement first names the table.
int connectTable(sqlite3* connection, void* verses, int, const char* const*, sqlite3_vtab** table, char**)
{
    sqlite3_vtab_config(connection, SQLITE_VTAB_INNOCUOUS);
    const int result = sqlite3_declare_vtab(
        connection, "CREATE TABLE rows (VerseId TEXT, VerseNumber INTEGER, KJVerseText TEXT)");
    if (result == SQLITE_OK)
        *table = new (std::nothrow) Table{{}, static_cast<const Verses*>(verses)};
    return result == SQLITE_OK && !*table ? SQLITE_NOMEM : result;
}

/// xDisconnect: the connection is closed.
int disconnectTable(sqlite3_vtab* table)
{
    delete static_cast<Table*>(table);
    return SQLITE_OK;
}

Use useOf(int column, int comparison)
{
    switch (comparison) {
    case SQLITE_INDEX_CONSTRAINT_EQ:
        return column == VerseNumber ? NumberEqual : column == VerseId ? KeyEqual : None;
    case SQLITE_INDEX_CONSTRAINT_LT:
        return column == VerseNumber ? NumberBelow : None;
    case SQLITE_INDEX_CONSTRAINT_LE:
        return column == VerseNumber ? NumberUpTo : None;
    case SQLITE_INDEX_CONSTRAINT_GT:
        return column == VerseNumber ? NumberAbove : None;
    case SQLITE_INDEX_CONSTRAINT_GE:
        return column == VerseNumber ? NumberFrom : None;
    case SQLITE_INDEX_CONSTRAINT_LIKE:
        return column == VerseId ? KeyLike : column == KJVerseText ? TextLike : None;
    default:
        return None;
    }
}

/// The share of the rows whose text a pattern finds, roughly; it is known while planning when it stands in
/// the query.
double shareOfTexts(const Verses& verses, sqlite3_index_info* info, int constraint)
try {
    sqlite3_value* pattern = nullptr;
    if (!verses.block || sqlite3_vtab_rhs_value(info, constraint, &pattern) != SQLITE_OK)
        return 1;
    return TextSearch(*verses.block, valueBytes(pattern)).share();
} catch (const DataError&) { // an invalid pattern; the query itself will say so
    return 0;
}

/// The share of the rows that a condition leaves, roughly.
double share(Use use)
{
    switch (use) {
    case NumberEqual:
    case KeyEqual:
        return 0;
    case KeyLike:
        return 0.01;
    default:
        return 0.5;
    }
}

// Measured costs of a row, in units of a row that a text search finds, which is dear because SQLite may run a
// search for each term of an OR and must then sort: when SQLite tests the row, and when a search passes over
// it.
constexpr double costOfTesting = 0.3;
constexpr double costOfSearching = 0.04;

/// xBestIndex: SQLite asks, for each way to run a statement that it considers, which conditions the table can
/// use, how many rows will come and what they cost. The plan is handed to startRows().
int planQuery(sqlite3_vtab* table, sqlite3_index_info* info)
try {
    const Verses& verses = *static_cast<Table*>(table)->verses;
    double rows = verses.block ? static_cast<double>(verses.block->size()) : 0;
    double found = 1;
    int searches = 0;
    std::string plan;
    for (int i = 0; i < info->nConstraint; ++i) {
        const auto& constraint = info->aConstraint[i];
        const Use use = constraint.usable ? useOf(constraint.iColumn, constraint.op) : None;
        if (use == None)
            continue;
        plan += static_cast<char>(use);
        info->aConstraintUsage[i].argvIndex = static_cast<int>(plan.size());
        // Comparisons only narrow the rows, and SQLite tests them again, by its own rules for values of
        // different types. LIKE is decided here for good.
        info->aConstraintUsage[i].omit = use == KeyLike || use == TextLike;
        if (use == TextLike) {
            found *= shareOfTexts(verses, info, i);
            ++searches;
        } else {
            rows *= share(use);
        }
    }
    const double searching = searches * costOfSearching + found;
    info->estimatedCost = 1 + rows * (searches ? searching : costOfTesting);
    info->estimatedRows = static_cast<sqlite3_int64>(rows * found) + 1;
    info->idxStr = sqlite3_mprintf("%s", plan.c_str());
    info->needToFreeIdxStr = 1;
    info->orderByConsumed =
        info->nOrderBy == 1 && info->aOrderBy[0].iColumn == VerseNumber && !info->aOrderBy[0].desc;
    return info->idxStr ? SQLITE_OK : SQLITE_NOMEM;
} catch (const std::bad_alloc&) {
    return SQLITE_NOMEM;
}

/// xOpen: a statement is about to read the table.
int openCursor(sqlite3_vtab* table, sqlite3_vtab_cursor** cursor)
{
    const Verses& verses = *static_cast<Table*>(table)->verses;
    if (verses.damage)
        return fail(table, *verses.damage);
    *cursor = new (std::nothrow) Cursor(verses);
    return *cursor ? SQLITE_OK : SQLITE_NOMEM;
}

/// xClose: it has read enough.
int closeCursor(sqlite3_vtab_cursor* cursor)
{
    delete asCursor(cursor);
    return SQLITE_OK;
}

void narrowByNumber(VerseCursor& rows, const VerseBlock& block, char use, sqlite3_int64 number)
{
    if (use == NumberEqual || use == NumberFrom)
        rows.keepFrom(block.rowNotBelow(number));
    if (use == NumberEqual || use == NumberUpTo)
        rows.keepBefore(block.rowAbove(number));
    if (use == NumberAbove)
        rows.keepFrom(block.rowAbove(number));
    if (use == NumberBelow)
        rows.keepBefore(block.rowNotBelow(number));
}

void narrow(VerseCursor& rows, const VerseBlock& block, char use, sqlite3_value* value)
{
    const int type = sqlite3_value_type(value);
    if (type == SQLITE_NULL)
        return rows.keepNone();
    const bool byNumber = use != KeyEqual && use != KeyLike && use != TextLike;
    if (byNumber && type == SQLITE_INTEGER)
        return narrowByNumber(rows, block, use, sqlite3_value_int64(value));
    if (byNumber || (use == KeyEqual && type != SQLITE_TEXT))
        return;
    const std::string_view operand = valueBytes(value);
    if (use == KeyEqual)
        rows.keepKey(operand);
    else if (use == KeyLike)
        rows.keepKeysLike(operand);
    else
        rows.keepTextsLike(operand);
}

/// xFilter: begins a walk, or begins it anew with other values. `plan` is what planQuery() chose, with a
/// value for each letter.
int startRows(sqlite3_vtab_cursor* cursor, int, const char* plan, int count, sqlite3_value** values)
try {
    const Verses& verses = asCursor(cursor)->verses;
    VerseCursor& rows = asCursor(cursor)->rows;
    rows = VerseCursor(verses);
    for (int i = 0; i < count; ++i)
        narrow(rows, *verses.block, plan[i], values[i]);
    rows.start();
    return SQLITE_OK;
} catch (const DataError& error) {
    return fail(cursor->pVtab, error);
} catch (const std::bad_alloc&) {
    return SQLITE_NOMEM;
}

/// xNext, xEof: steps on; whether that led past the last row.
int nextRow(sqlite3_vtab_cursor* cursor)
{
    asCursor(cursor)->rows.next();
    return SQLITE_OK;
}

int atEnd(sqlite3_vtab_cursor* cursor)
{
    return asCursor(cursor)->rows.atEnd();
}

/// xColumn: a column of the current row, texts without a copy.
int readColumn(sqlite3_vtab_cursor* cursor, sqlite3_context* context, int column)
{
    const VerseBlock& block = *asCursor(cursor)->verses.block;
    const std::size_t row = asCursor(cursor)->rows.row();
    if (column == VerseNumber) {
        sqlite3_result_int64(context, block.number(row));
    } else {
        const std::string_view text = column == VerseId ? block.key(row) : block.text(row);
        sqlite3_result_text(context, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
    }
    return SQLITE_OK;
}

/// xRowid: by which SQLite knows a row again that two terms of an OR have found.
int readRowid(sqlite3_vtab_cursor* cursor, sqlite3_int64* rowid)
{
    *rowid = static_cast<sqlite3_int64>(asCursor(cursor)->rows.row());
    return SQLITE_OK;
}

/// Without xCreate: the table is there under the module's name, and no statement creates another.
sqlite3_module makeModule()
{
    sqlite3_module module{};
    module.xConnect = connectTable;
    module.xBestIndex = planQuery;
    module.xDisconnect = disconnectTable;
    module.xOpen = openCursor;
    module.xClose = closeCursor;
    module.xFilter = startRows;
    module.xNext = nextRow;
    module.xEof = atEnd;
    module.xColumn = readColumn;
    module.xRowid = readRowid;
    return module;
}

} // namespace

int registerVerseTable(sqlite3* connection, const Verses* verses)
{
    static const sqlite3_module module = makeModule();
    return sqlite3_create_module(connection, "VerseRows", &module, const_cast<Verses*>(verses));
}
