// Another program's document: takes whatever is dropped on it and prints, as one line of JSON, the formats
// that were offered, the action that was proposed and the plain text in its bytes. Its title tells of a drag
// over it.
#include <iostream>
#include <QApplication>
#include <QDropEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>
#include <QWidget>

namespace {

constexpr auto title = "Drop target";

class Document : public QWidget
{
public:
    Document()
    {
        setWindowTitle(title);
        setAcceptDrops(true);
        resize(300, 300);
    }

protected:
    void dragEnterEvent(QDragEnterEvent* event) override
    {
        setWindowTitle("Dragged over");
        event->acceptProposedAction();
    }

    void dragLeaveEvent(QDragLeaveEvent* /*event*/) override { setWindowTitle(title); }

    void dropEvent(QDropEvent* event) override
    {
        setWindowTitle(title);
        event->acceptProposedAction();
        const QJsonObject dropped{
            {"formats", QJsonArray::fromStringList(event->mimeData()->formats())},
            {"copies", event->proposedAction() == Qt::CopyAction},
            {"onlyCopies", event->possibleActions() == Qt::CopyAction},
            {"text", QString::fromUtf8(event->mimeData()->data("text/plain"))},
        };
        std::cout << QJsonDocument(dropped).toJson(QJsonDocument::Compact).constData() << std::endl;
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    Document document;
    document.show();
    return QApplication::exec();
}
