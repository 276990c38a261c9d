#include "select/Lookup.h"

#include "desktop/MsgBox.h"
#include "read/ChildRead.h"
#include "read/Stepping.h"
#include "widgets/Hourglass.h"
#include <QLabel>

namespace {

void show(DataSource& data, const QString& condition)
{
    data.setRecordSource(("SELECT * FROM NewTestament WHERE " + condition).toStdString());
    data.refresh();
}

bool isShown(const QString& key, const QString& reference)
{
    return key == reference || key == reference + ":";
}

} // namespace

void displayVerse(ChildRead& reading, const QString& reference)
{
    const int current = qMax(1, static_cast<int>(leadingNumber(reading.lblSerial->text())));
    if (!isShown(reading.lblVerseId->text(), reference)) {
        {
            const Hourglass hourglass;
            show(reading.DataCtl, "VerseId LIKE '" + reference + "*'");
        }
        if (reading.DataCtl.recordCount() == 0) {
            MsgBox::show("Incorrect user input. No such verse.", MsgIcon::Exclamation, MsgButtons::Ok,
                         "Try Again!");
            show(reading.DataCtl, QString("VerseNumber = %1").arg(current));
        }
    }
    reading.restoreAndActivate();
}
