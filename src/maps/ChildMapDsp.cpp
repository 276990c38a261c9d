#include "maps/ChildMapDsp.h"

#include "desktop/BasePath.h"
#include "desktop/Clipboard.h"
#include "maps/MapPicture.h"
#include "maps/ScrollByKey.h"
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
    , m_surface(new QScrollArea(this))
{
    auto* surface = new QWidget;
    Image1 = new MapPicture(surface);
    Image1->setObjectName("Image1");
    Image1->move(toPixels(60), toPixels(60));
    lblMapDesc = new QLabel(surface);
    lblMapDesc->setObjectName("lblMapDesc");
    lblMapDesc->setTextFormat(Qt::PlainText);
    lblMapDesc->hide();
    cmdZoom = new SoftBttn("cmdZoom", PictureId::Zoom, "Zoom In/Restore Normal Size", surface);
    place(*cmdZoom, 1680, 60, 480, 480);
    cmdPicCopy = new SoftBttn("cmdPicCopy", PictureId::CopyMap, "Copy Map to Clipboard", surface);
    place(*cmdPicCopy, 1680, 540, 480, 480);
    m_surface->setFrameShape(QFrame::NoFrame);
    m_surface->setFocusPolicy(Qt::NoFocus);
    m_surface->setWidget(surface);

    QMenu* edit = Menus::make(*this, "mnuEdit", "&Edit");
    Menus::addItem(edit, "mnuCopy", "&Copy Map to Clipboard", Qt::CTRL | Qt::Key_C,
                   [this] { cmdPicCopy_Click(); });
    QMenu* view = Menus::make(*this, "mnuView", "&View");
    Menus::addItem(view, "mnuZoom", "&Zoom In/Restore Normal Size", {}, [this] { cmdZoom_Click(); });
    makeMenus({edit, view});

    DataMap.setRecordSource("NTMaps");
    DataMap.currentRowChanged = [this] { DataMap_Reposition(); };
    connect(Image1, &MapPicture::dragCompleted, this, &ChildMapDsp::Image1_DragComplete);
    connect(cmdZoom, &SoftBttn::clicked, this, &ChildMapDsp::cmdZoom_Click);
    connect(cmdPicCopy, &SoftBttn::clicked, this, &ChildMapDsp::cmdPicCopy_Click);
}

void ChildMapDsp::Form_Load()
{
    DataMap.setDatabaseName(databasePath(shell().basePath()));
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
    const QString description = toText(DataMap.field("MapDesc"));
    lblMapDesc->setText(description);
    const std::string_view bytes = DataMap.field("Pic");
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
    copyOrReport(Image1->image());
}

void ChildMapDsp::fitWindow()
{
    const int width = qRound(Image1->extent().width());
    const int height = qRound(Image1->extent().height());
    setOuterSize(width + 800, height + 520);
    cmdPicCopy->move(toPixels(width + 150), cmdPicCopy->y());
    cmdZoom->move(toPixels(width + 150), cmdZoom->y());
    const QRect content = Image1->geometry() | cmdZoom->geometry() | cmdPicCopy->geometry();
    m_surface->widget()->resize(content.right() + 1, content.bottom() + 1);
    m_surface->resize(size());
}
