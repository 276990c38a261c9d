#include "app/frmStart.h"

#include "app/AboutLayout.h"
#include "app/AboutTexts.h"
#include "app/EscCloses.h"
#include "app/frmDN.h"
#include "app/frmQORV.h"
#include "app/LinkLabel.h"
#include "app/Program.h"
#include "app/StartupChecks.h"
#include "desktop/MsgBox.h"
#include "desktop/Platform.h"
#include "pictures/TextCredit.h"
#include "widgets/Layout.h"
#include "widgets/Maker.h"
#include "widgets/SoftBttn.h"
#include "widgets/Twips.h"
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QTimer>

namespace {

constexpr int splashMilliseconds = 2000;
constexpr int margin = 150;

ControlPlace placeOf(const QWidget& control)
{
    return {toTwips(control.x()), toTwips(control.y()), toTwips(control.width()), toTwips(control.height())};
}

void moveTo(QWidget& control, const ControlPlace& place)
{
    control.move(toPixels(place.left), toPixels(place.top));
}

} // namespace

frmStart::frmStart(Program& program, QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::FramelessWindowHint)
    , Image1(new QLabel(this))
    , Image2(new LinkLabel(iconOf(PictureId::Mail), this))
    , cmdMail(new LinkLabel("E-mail: " + Maker::mail, this))
    , cmdMore(new SoftBttn(PictureId::MoreInfo, "More Info", this))
    , cmdDonation(new SoftBttn(PictureId::Donation, "DonationWare", this))
    , cmdQORV(new SoftBttn(PictureId::DiscOffer, "QORV CD-ROM Offer", this))
    , cmdOK(new SoftBttn(PictureId::Ok, "OK", this))
    , Timer1(new QTimer(this))
    , m_program(program)
{
    setObjectName("frmStart");
    setAttribute(Qt::WA_DeleteOnClose);
    new EscCloses(*this); // what cmdOK does
    setAccessibleName("Kestrel Reader (PT)");
    Image1->setAccessibleDescription(textCredit);
    Image1->setPixmap(splashPicture(devicePixelRatioF()));
    Image2->setToolTip(mailLink().toString());
    layOut({
        {Image1, "Image1", "Kestrel Reader (PT)", {margin, margin, 0, 0}},
        {Image2, "Image2", cmdMail->text(), {margin, 4760, 360, 360}},
        {cmdMail, "cmdMail", "", {600, 4760, 0, 0}},
        {cmdMore, "cmdMore", "", {margin, 4760, 480, 480}},
        {cmdDonation, "cmdDonation", "", {margin, 4760, 480, 480}},
        {cmdQORV, "cmdQORV", "", {margin, 4760, 480, 480}},
        {cmdOK, "cmdOK", "", {margin, 4760, 480, 480}},
    });
    Image1->adjustSize();  // as large as the picture,
    cmdMail->adjustSize(); // and as the text
    Timer1->setObjectName("Timer1");
    Timer1->setTimerType(Qt::PreciseTimer);
    Timer1->setSingleShot(true);
    Timer1->setInterval(splashMilliseconds);
    connect(Timer1, &QTimer::timeout, this, &frmStart::Timer1_Timer);
    connect(cmdMore, &SoftBttn::clicked, this, &frmStart::cmdMore_Click);
    connect(cmdDonation, &SoftBttn::clicked, this, &frmStart::cmdDonation_Click);
    connect(cmdQORV, &SoftBttn::clicked, this, &frmStart::cmdQORV_Click);
    connect(cmdMail, &LinkLabel::clicked, this, &frmStart::cmdMail_Click);
    connect(Image2, &LinkLabel::clicked, this, &frmStart::Image2_Click);
    connect(cmdOK, &SoftBttn::clicked, this, &frmStart::cmdOK_Click);
}

bool frmStart::load()
{
    return Form_Load();
}

bool frmStart::Form_Load()
{
    if (isAbout()) {
        Timer1->stop();
        layOutAbout();
        return true;
    }
    if (!passesChecks())
        return false;
    setFixedSize(Image1->geometry().right() + 1 + toPixels(margin),
                 Image1->geometry().bottom() + 1 + toPixels(margin));
    hideAboutControls();
    return true;
}

void frmStart::Form_Activate()
{
    if (!isAbout())
        setCursor(Qt::WaitCursor);
}

void frmStart::Timer1_Timer()
{
    m_program.showFrame();
}

void frmStart::cmdMore_Click()
{
    MsgBox::show(informationText(), MsgIcon::Information);
}

void frmStart::cmdDonation_Click()
{
    (new frmDN(this))->exec();
}

void frmStart::cmdQORV_Click()
{
    (new frmQORV(this))->exec();
}

void frmStart::cmdMail_Click()
{
    Platform::current().openLink(mailLink());
}

void frmStart::Image2_Click()
{
    cmdMail_Click();
}

void frmStart::cmdOK_Click()
{
    close();
}

bool frmStart::isAbout() const
{
    return m_program.flags.StartFormMode == startFormIsAbout;
}

bool frmStart::passesChecks()
{
    const std::optional<Refusal> refusal = startupRefusal(m_program.basePath);
    if (refusal)
        MsgBox::show(refusal->text, MsgIcon::Stop, MsgButtons::Ok, refusal->title);
    return !refusal;
}

void frmStart::hideAboutControls()
{
    const QList<QWidget*> controls = {cmdOK, cmdMore, cmdQORV, cmdDonation, cmdMail, Image2};
    for (QWidget* control : controls) {
        control->setVisible(false);
        control->setEnabled(false);
    }
}

void frmStart::layOutAbout()
{
    AboutPlaces designed;
    designed.Image1 = placeOf(*Image1);
    designed.cmdOK = placeOf(*cmdOK);
    designed.cmdMore = placeOf(*cmdMore);
    designed.cmdDonation = placeOf(*cmdDonation);
    designed.cmdQORV = placeOf(*cmdQORV);
    designed.Image2 = placeOf(*Image2);
    designed.cmdMail = placeOf(*cmdMail);

    const AboutPlaces places = aboutLayout(designed);
    moveTo(*cmdOK, places.cmdOK);
    moveTo(*cmdMore, places.cmdMore);
    moveTo(*cmdDonation, places.cmdDonation);
    moveTo(*cmdQORV, places.cmdQORV);
    moveTo(*Image2, places.Image2);
    moveTo(*cmdMail, places.cmdMail);
    setFixedSize(toPixels(places.windowWidth), toPixels(places.windowHeight));
    // In the middle of the frame, and told to the desktop: where that chooses the place of a window without a
    // frame, Qt does not always learn it, and assistive tools look for the buttons elsewhere.
    adjustPosition(parentWidget());
    cmdOK->setFocus();
}

void frmStart::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Form_Activate();
}

void frmStart::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    QPainter(this).drawRect(rect().adjusted(0, 0, -1, -1)); // no desktop draws an edge around it
}

void frmStart::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!isAbout())
        Timer1->start();
}
