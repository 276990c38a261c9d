#include "clip/AnimationPlayer.h"

#include "desktop/OpenFile.h"
#include <QPainter>

namespace {

constexpr qint64 maxClipBytes = qint64(32) * 1024 * 1024;

QByteArray readClip(const QString& path)
{
    QFile file(path);
    if (!openForReading(file) || file.size() > maxClipBytes)
        return {};
    return file.readAll();
}

} // namespace

AnimationPlayer::AnimationPlayer(QWidget* parent)
    : QWidget(parent)
{
}

bool AnimationPlayer::open(const QString& path)
{
    stop();
    m_clip = readAvi(readClip(path));
    m_frame = 0;
    update();
    return !m_clip.frames.isEmpty();
}

void AnimationPlayer::play()
{
    if (m_clip.frames.isEmpty())
        return;
    m_clock.start();
    m_frame = 0;
    repaint();
}

void AnimationPlayer::tick()
{
    if (!isPlaying())
        return;
    const std::chrono::nanoseconds elapsed(m_clock.nsecsElapsed());
    const qsizetype due = (elapsed / m_clip.frameTime) % frameCount();
    if (due == m_frame)
        return;
    m_frame = due;
    repaint();
}

void AnimationPlayer::stop()
{
    m_clock.invalidate();
}

QSize AnimationPlayer::sizeHint() const
{
    return m_clip.frames.isEmpty() ? QSize(240, 60) : m_clip.frames.first().size();
}

void AnimationPlayer::paintEvent(QPaintEvent*)
{
    if (m_clip.frames.isEmpty())
        return;
    const QImage& frame = m_clip.frames.at(m_frame);
    QRect place(QPoint(), frame.size().scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, frame);
}
