#include "app/frmStart.h"

#include "app/Program.h"
#include "app/StartupChecks.h"
#include "widgets/MsgBox.h"
#include "widgets/Pictures.h"
#include "widgets/Twips.h"
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QTimer>

namespace {

constexpr int splashMilliseconds = 2000;
constexpr int margin = 150;

} // namespace

frmStart::frmStart(Program& program)
    : QDialog(nullptr, Qt::Dialog | Qt::FramelessWindowHint)
    , Image1(new QLabel(this))
    , Timer1(new QTimer(this))
    , m_program(program)
{
    setObjectName("frmStart");
    setAttribute(Qt::WA_DeleteOnClose);
    setAccessibleName("Kestrel Reader (PT)");
    Image1->setObjectName("Image1");
    Image1->setAccessibleName("Kestrel Reader (PT)");
    Image1->setPixmap(splashPicture(devicePixelRatioF()));
    Image1->move(twips(margin), twips(margin));
    Image1->adjustSize();
    Timer1->setObjectName("Timer1");
    Timer1->setTimerType(Qt::PreciseTimer);
    Timer1->setSingleShot(true);
    Timer1->setInterval(splashMilliseconds);
    connect(Timer1, &QTimer::timeout, this, &frmStart::Timer1_Timer);
}

bool frmStart::load()
{
    return Form_Load();
}

bool frmStart::Form_Load()
{
    if (!passesChecks())
        return false;
    setFixedSize(Image1->geometry().right() + 1 + twips(margin),
                 Image1->geometry().bottom() + 1 + twips(margin));
    return true;
}

void frmStart::Form_Activate()
{
    if (m_program.flags.StartFormMode != 3)
        setCursor(Qt::WaitCursor);
}

void frmStart::Timer1_Timer()
{
    m_program.showFrame();
}

bool frmStart::passesChecks()
{
    const std::optional<Refusal> refusal = startupRefusal(m_program.basePath);
    if (refusal)
        MsgBox::show(refusal->text, MsgIcon::Stop, MsgButtons::Ok, refusal->title);
    return !refusal;
}

void frmStart::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Form_Activate();
}

void frmStart::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (m_program.flags.StartFormMode != 3)
        Timer1->start();
}

void frmStart::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QDialog::keyPressEvent(event);
}
