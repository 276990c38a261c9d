#include "desktop/MsgBox.h"

#include <QApplication>
#include <QGridLayout>
#include <QMessageBox>

namespace {

QMessageBox::Icon iconOf(MsgIcon icon)
{
    switch (icon) {
    case MsgIcon::Stop:
        return QMessageBox::Critical;
    case MsgIcon::Question:
        return QMessageBox::Question;
    case MsgIcon::Exclamation:
        return QMessageBox::Warning;
    case MsgIcon::Information:
        break;
    }
    return QMessageBox::Information;
}

/// Whoever draws the title cuts it where the box is narrower: a window manager, in bold letters between an
/// icon and three buttons; Qt itself, on Wayland, in larger letters in the middle of the bar, as far as its
/// three buttons. QMessageBox takes its width from the text alone, so a spacer widens the box.
void makeRoomForTitle(QMessageBox& box)
{
    QFont bold = box.font();
    bold.setBold(true);
    constexpr int beside = 2 * 3 * 28; // pixels: what the middle leaves at the right, it leaves at the left
    const int room = QFontMetrics(bold).horizontalAdvance(box.windowTitle()) * 5 / 4 + beside;
    auto& layout = *qobject_cast<QGridLayout*>(box.layout());
    layout.addItem(new QSpacerItem(room, 0), layout.rowCount(), 0, 1, layout.columnCount());
}

MsgAnswer showBox(const MsgBox::Message& message)
{
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(message.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(QString(message.text).replace("\r\n", "\n"));
    box.setIcon(iconOf(message.icon));
    const bool asks = message.buttons == MsgButtons::YesNo;
    box.setStandardButtons(asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    box.setDefaultButton(asks ? QMessageBox::Yes : QMessageBox::Ok);
    box.setEscapeButton(asks ? QMessageBox::No : QMessageBox::Ok);
    makeRoomForTitle(box);
    const int answer = box.exec();
    if (!asks)
        return MsgAnswer::Ok;
    return answer == QMessageBox::Yes ? MsgAnswer::Yes : MsgAnswer::No;
}

MsgBox::BackEnd& backEnd()
{
    static MsgBox::BackEnd current = showBox;
    return current;
}

} // namespace

MsgAnswer MsgBox::show(const QString& text, MsgIcon icon, MsgButtons buttons, const QString& title)
{
    return backEnd()({text, icon, buttons, title});
}

void MsgBox::setBackEnd(BackEnd replacement)
{
    backEnd() = replacement ? std::move(replacement) : BackEnd(showBox);
}
