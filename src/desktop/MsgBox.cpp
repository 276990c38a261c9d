#include "desktop/MsgBox.h"

#include <QApplication>
#include <QGridLayout>
#include <QMainWindow>
#include <QMessageBox>
#include <QScreen>

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

/// QDialog puts a box in the middle of its window. Where it would cover what it announces, it stands below
/// that, or else at its right, above it or at its left: the first side on which the screen has room.
void keepClearOf(QMessageBox& box, const QRect& announced)
{
    constexpr QSize border(12, 40); // of the desktop's, with a title bar
    constexpr int titleBar = 34; // the part above the box, which some desktops put above the place asked for
    const QSize size = box.sizeHint() + border;
    const QRect screen = box.screen()->availableGeometry();
    QRect usual(QPoint(), size);
    usual.moveCenter(box.parentWidget() ? box.parentWidget()->geometry().center() : screen.center());
    if (announced.isEmpty() || !usual.intersects(announced))
        return;
    const QPoint middle = usual.topLeft();
    for (const QPoint& corner :
         {QPoint(middle.x(), announced.bottom() + 1 + titleBar), QPoint(announced.right() + 1, middle.y()),
          QPoint(middle.x(), announced.top() - size.height()),
          QPoint(announced.left() - size.width(), middle.y())})
        if (screen.contains(QRect(corner, size))) {
            box.move(corner);
            return;
        }
}

/// The window that a box stands over: the active one, or, where that may be closed while the box stands
/// (help) and would take the box with it, the frame.
QWidget* ownerOfBox()
{
    QWidget* const active = QApplication::activeWindow();
    if (!active || !active->testAttribute(Qt::WA_DeleteOnClose))
        return active;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (qobject_cast<QMainWindow*>(window) && window->isVisible() && window != active)
            return window;
    return nullptr;
}

MsgAnswer showBox(const MsgBox::Message& message)
{
    QMessageBox box(ownerOfBox());
    box.setWindowTitle(message.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(QString(message.text).replace("\r\n", "\n"));
    box.setIcon(iconOf(message.icon));
    const bool asks = message.buttons == MsgButtons::YesNo;
    box.setStandardButtons(asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    box.setDefaultButton(asks ? QMessageBox::Yes : QMessageBox::Ok);
    box.setEscapeButton(asks ? QMessageBox::No : QMessageBox::Ok);
    makeRoomForTitle(box);
    keepClearOf(box, message.announced);
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

MsgAnswer MsgBox::show(const QString& text, MsgIcon icon, MsgButtons buttons, const QString& title,
                       const QRect& announced)
{
    return backEnd()({text, icon, buttons, title, announced});
}

void MsgBox::setBackEnd(BackEnd replacement)
{
    backEnd() = replacement ? std::move(replacement) : BackEnd(showBox);
}
