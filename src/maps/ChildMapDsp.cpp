#include "maps/ChildMapDsp.h"

#include "desktop/BasePath.h"
#include "desktop/Clipboard.h"
#include "maps/MapPicture.h"
#include "maps/ScrollByKey.h"
#include "widgets/DataControl.h"
#include "widgets/Layout.h"
#include "widgets/Menus.h"
#include "widgets/ProgramFlags.h"
#include "widgets/Shell.h"
#include "widgets/SoftBttn.h"
#include "widgets/Text.h"
#include "widgets/Twips.h"
#include <QScrollArea>

namespace {

constexpr qreal zoomFactor = 1.2;

} // namespace

ChildMapDsp::ChildMapDsp(Shell& shell)
    : Form(shell, "ChildMapDsp")
    , DataMap(new DataControl("DataMap", "NTMaps", this))
    , m_content(new QWidget)
    , Image1(new MapPicture(m_content))
    , lblMapDesc(new QLabel(m_content))
    , cmdZoom(new SoftBttn(PictureId::Zoom, "Zoom In/Restore Normal Size", m_content))
    , cmdPicCopy(new SoftBttn(PictureId::CopyMap, "Copy Map to Clipboard", m_content))
    , m_surface(new QScrollArea(this))
{
    layOut({
        {Image1, "Image1", "", {60, 60, 735, 735}},
        {lblMapDesc, "lblMapDesc", "", {60, 60, 735, 240}},
        {cmdZoom, "cmdZoom", "", {1680, 60, 480, 480}},
        {cmdPicCopy, "cmdPicCopy", "", {1680, 540, 480, 480}},
    });
    lblMapDesc->setTextFormat(Qt::PlainText);
    lblMapDesc->hide();
    m_surface->setFrameShape(QFrame::NoFrame);
    m_surface->setFocusPolicy(Qt::NoFocus);
    m_surface->setWidget(m_content);

    QMenu* edit = Menus::make(*this, "mnuEdit", "&Edit");
    Menus::addItem(edit, "mnuCopy", "&Copy Map to Clipboard", Qt::CTRL | Qt::Key_C,
                   [this] { cmdPicCopy_Click(); });
    QMenu* view = Menus::make(*this, "mnuView", "&View");
    Menus::addItem(view, "mnuZoom", "&Zoom In/Restore Normal Size", {}, [this] { cmdZoom_Click(); });
    makeMenus({edit, view});

    DataMap->currentRowChanged = [this] { DataMap_Reposition(); };
    connect(Image1, &MapPicture::dragCompleted, this, &ChildMapDsp::Image1_DragComplete);
    connect(cmdZoom, &SoftBttn::clicked, this, &ChildMapDsp::cmdZoom_Click);
    connect(cmdPicCopy, &SoftBttn::clicked, this, &ChildMapDsp::cmdPicCopy_Click);
}

void ChildMapDsp::showMap(int number)
{
    shell().flags().MapFirstShow = 1;
    shell().flags().MapZoomed = 0;
    Image1->setStretch(false);
    DataMap->setRecordSource("SELECT * FROM NTMaps WHERE MapNumber = " + std::to_string(number));
    DataMap->refresh();
    setState(Normal);
    activate();
}

void ChildMapDsp::Form_Load()
{
    DataMap->setDatabaseName(databasePath(shell().basePath()));
    setOuterPosition(0, 0);
}

void ChildMapDsp::Form_Activate()
{
    setCaption("Map -- " + lblMapDesc->text());
    if (shell().flags().MapFirstShow != 1)
        return;
    setState(Normal);
    fitWindow();
    setOuterPosition(0, 0);
    shell().flags().MapFirstShow = 0;
}

void ChildMapDsp::Form_Resize()
{
    fitWindow();
}

bool ChildMapDsp::Form_KeyDown(QKeyEvent& event)
{
    return scrollByKey(*Image1, event);
}

void ChildMapDsp::DataMap_Reposition()
{
    const QString description = toText(DataMap->field("MapDesc"));
    lblMapDesc->setText(description);
    const std::string_view bytes = DataMap->field("Pic");
    Image1->setImage(decodedImage(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size()))));
    Image1->setAccessibleName(description);
}

void ChildMapDsp::Image1_DragComplete()
{
    DataMap_Reposition();
}

void ChildMapDsp::cmdZoom_Click()
{
    Image1->setStretch(true);
    std::int16_t& zoomed = shell().flags().MapZoomed;
    Image1->setExtent(zoomed == 1 ? Image1->extent() / zoomFactor : Image1->extent() * zoomFactor);
    zoomed = zoomed == 1 ? 0 : 1;
    fitWindow();
}

void ChildMapDsp::cmdPicCopy_Click()
{
    if (copyOrReport(Image1->image()) && !Image1->image().isNull())
        cmdPicCopy->acknowledge("Copied");
}

void ChildMapDsp::fitWindow()
{
    const int width = qRound(Image1->extent().width());
    const int height = qRound(Image1->extent().height());
    setOuterSize(width + 800, height + 520);
    cmdPicCopy->move(toPixels(width + 150), cmdPicCopy->y());
    cmdZoom->move(toPixels(width + 150), cmdZoom->y());
    const QRect content = Image1->geometry() | cmdZoom->geometry() | cmdPicCopy->geometry();
    m_content->resize(content.right() + 1, content.bottom() + 1);
    m_surface->resize(size());
}
