#pragma once

#include <functional>
#include <memory>
#include <QApplication>
#include <QTimer>

/// Runs `use` as soon as another modal window than now is open and waits for input, however long that takes.
/// Keep what it returns until then.
[[nodiscard]] inline std::unique_ptr<QTimer> onceModal(std::function<void(QWidget&)> use)
{
    auto timer = std::make_unique<QTimer>();
    const QWidget* before = QApplication::activeModalWidget();
    QObject::connect(timer.get(), &QTimer::timeout, [timer = timer.get(), before, use = std::move(use)] {
        QWidget* window = QApplication::activeModalWidget();
        if (!window || window == before)
            return;
        timer->stop();
        use(*window);
    });
    timer->start(1);
    return timer;
}
