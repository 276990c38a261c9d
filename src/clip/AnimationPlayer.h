#pragma once

#include "clip/AviReader.h"
#include <QElapsedTimer>
#include <QWidget>

/// Plays a clip while the program's one thread is busy: whoever does the work calls tick() between its steps.
/// Events are never processed on the way, so nothing can enter the work a second time.
class AnimationPlayer : public QWidget
{
    Q_OBJECT

public:
    explicit AnimationPlayer(QWidget* parent = nullptr);

    /// Reads the clip, all frames at once. False for a file without a single sound frame: the player is then
    /// empty, and playing it does nothing.
    bool open(const QString& path);
    /// Shows the first frame at once.
    void play();
    /// Shows the frame that is due, when it is another than the one shown. Cheap enough to be called for
    /// every row.
    void tick();
    void stop();

    bool isPlaying() const { return m_clock.isValid(); }
    qsizetype frameCount() const { return m_clip.frames.size(); }
    /// The place of the frame that is shown, from 0.
    qsizetype currentFrame() const { return m_frame; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    AviClip m_clip;
    QElapsedTimer m_clock; ///< valid while playing
    qsizetype m_frame = 0;
};
