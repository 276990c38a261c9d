// Writes the application icon in the sizes that packages ask for, the splash, and a contact sheet of all
// pictures as buttons, to be looked at.
//
//     export_pictures FOLDER
#include "widgets/SoftBttn.h"
#include <array>
#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QTextStream>

namespace {

bool write(const QImage& image, const QString& path)
{
    if (image.save(path))
        return true;
    QTextStream(stderr) << "Cannot write " << path << Qt::endl;
    return false;
}

bool exportIcon(const QDir& folder)
{
    bool written = true;
    for (const int side : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        const QImage image = iconOf(PictureId::Application).pixmap(QSize(side, side), 1.0).toImage();
        written = write(image, folder.filePath(QString("kestrel-reader-%1.png").arg(side))) && written;
    }
    return written;
}

enum class Look {
    Normal,
    Hovered,
    Pressed,
    Focused,
    Disabled,
};

constexpr std::array looks{Look::Normal, Look::Hovered, Look::Pressed, Look::Focused, Look::Disabled};

// A button that shows a look as if a hand were at it.
class PosingButton : public SoftBttn
{
public:
    PosingButton(PictureId id, Look look, QWidget* parent)
        : SoftBttn(id, QString(), parent)
    {
        setDown(look == Look::Pressed);
        setEnabled(look != Look::Disabled);
        if (look != Look::Focused)
            setFocusPolicy(Qt::NoFocus);
        m_hovered = (look == Look::Hovered);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        setAttribute(Qt::WA_UnderMouse, m_hovered);
        SoftBttn::paintEvent(event);
    }

private:
    bool m_hovered = false;
};

QImage pose(PictureId id, Look look, int side, const QPalette& palette, qreal ratio)
{
    QWidget window;
    window.setPalette(palette);
    window.resize(side, side);
    PosingButton button(id, look, &window);
    button.resize(side, side);
    window.show();
    if (look == Look::Focused) {
        window.activateWindow();
        button.setFocus();
    }
    QCoreApplication::processEvents();
    QImage image(window.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    window.render(&image);
    return image;
}

QImage contactSheet(const QPalette& palette, int side, qreal ratio)
{
    const int step = side + 8;
    const auto columns = allPictures().size();
    QImage sheet(QSize(static_cast<int>(columns) * step + 8, static_cast<int>(looks.size()) * step + 8) *
                     ratio,
                 QImage::Format_ARGB32_Premultiplied);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(palette.window().color());
    QPainter painter(&sheet);
    int y = 8;
    for (const Look look : looks) {
        int x = 8;
        for (const PictureId id : allPictures()) {
            painter.drawImage(QPoint(x, y), pose(id, look, side, palette, ratio));
            x += step;
        }
        y += step;
    }
    return sheet;
}

QPalette darkPalette()
{
    QPalette palette(QColor(0x3a3f44), QColor(0x2b2f33));
    return palette;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc != 2) {
        QTextStream(stderr) << "usage: export_pictures FOLDER" << Qt::endl;
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    folder.mkpath(".");
    bool written = exportIcon(folder);
    for (const qreal ratio : {1.0, 2.0}) {
        const QString percent = QString("-%1.png").arg(qRound(ratio * 100));
        written = write(splashPicture(ratio).toImage(), folder.filePath("splash" + percent)) && written;
        for (const int side : {24, 32}) {
            const QString name = QString("contact-%1-%2").arg(side);
            const QPalette light(QColor(0xefefef));
            written = write(contactSheet(light, side, ratio), folder.filePath(name.arg("light") + percent)) &&
                      written;
            written = write(contactSheet(darkPalette(), side, ratio),
                            folder.filePath(name.arg("dark") + percent)) &&
                      written;
        }
    }
    return written ? 0 : 1;
}
