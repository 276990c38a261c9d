#pragma once

#include "desktop/MsgBox.h"
#include "desktop/Platform.h"
#include <QList>

/// Records every message box while it lives, and answers it.
class RecordedBoxes
{
public:
    RecordedBoxes()
    {
        MsgBox::setBackEnd([this](const MsgBox::Message& message) {
            shown << message;
            if (whileShown)
                whileShown();
            return answer;
        });
    }
    ~RecordedBoxes() { MsgBox::setBackEnd({}); }
    RecordedBoxes(const RecordedBoxes&) = delete;
    RecordedBoxes& operator=(const RecordedBoxes&) = delete;

    QList<MsgBox::Message> shown;
    MsgAnswer answer = MsgAnswer::Ok;
    std::function<void()> whileShown; ///< runs while a box is open
};

/// Records what is asked of the desktop while it lives.
class RecordedServices : public Platform
{
public:
    RecordedServices() { Platform::replace(this); }
    ~RecordedServices() override { Platform::replace(nullptr); }
    RecordedServices(const RecordedServices&) = delete;
    RecordedServices& operator=(const RecordedServices&) = delete;

    bool previousInstance() override { return anotherCopyRuns; }
    bool startProgram(const QString& path) override
    {
        programs << path;
        return programsStart;
    }
    void openLink(const QUrl& link) override { links << link; }
    void beep() override { ++beeps; }
    bool setClipboard(const QString& text) override { return put(text); }
    bool setClipboard(const QImage& picture) override { return put(picture); }

    void announce(QWidget&, const QString& text) override { announced << text; }

    bool anotherCopyRuns = false;
    bool programsStart = true;
    bool clipboardWorks = true;
    QStringList programs;
    QList<QUrl> links;
    QStringList announced;
    int beeps = 0;

private:
    /// Without a screen nobody owns the clipboard, so the real service would report a failure.
    template <class Contents>
    bool put(const Contents& contents)
    {
        if (clipboardWorks)
            Platform::setClipboard(contents);
        return clipboardWorks;
    }
};
