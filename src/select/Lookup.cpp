#include "select/Lookup.h"

#include "desktop/MsgBox.h"
#include "read/ChildRead.h"
#include "widgets/Hourglass.h"

namespace {

const std::string verses = "SELECT * FROM NewTestament WHERE ";

bool isShown(const QString& key, const QString& reference)
{
    return key == reference || key == reference + ":";
}

} // namespace

void displayVerse(ChildRead& reading, const QString& reference)
{
    const int current = qMax(1, reading.currentNumber());
    if (!isShown(reading.currentKey(), reference)) {
        Hourglass hourglass;
        const bool found = reading.fetch(verses + "VerseId LIKE '" + reference.toStdString() + "*'");
        hourglass.restore();
        if (!found) {
            MsgBox::show("Incorrect user input. No such verse.", MsgIcon::Exclamation, MsgButtons::Ok,
                         "Try Again!");
            reading.fetch(verses + "VerseNumber = " + std::to_string(current));
        }
    }
    reading.restoreAndActivate();
}
