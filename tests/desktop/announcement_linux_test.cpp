// What a screen reader is told over AT-SPI's bus, whose other end is here.
#include "desktop/AnnouncementLinux.h"
#include "support/ActiveWindow.h"
#include <gtest/gtest.h>
#include <QAccessible>
#include <QApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusServer>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QLineEdit>
#include <QTest>

namespace {

/// A program that listens to an event.
struct Listener
{
    QString program;
    QString event;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Listener& listener)
{
    argument.beginStructure();
    argument << listener.program << listener.event;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Listener& listener)
{
    argument.beginStructure();
    argument >> listener.program >> listener.event;
    argument.endStructure();
    return argument;
}

/// The registry, and whoever hears the events.
class Bus : public QDBusVirtualObject
{
    Q_OBJECT

public:
    Bus()
    {
        qDBusRegisterMetaType<Listener>();
        qDBusRegisterMetaType<QList<Listener>>();
        connect(&m_server, &QDBusServer::newConnection, this, [this](const QDBusConnection& connection) {
            m_connection = connection;
            m_connection.registerVirtualObject("/org/a11y/atspi/registry", this);
            m_connection.connect({}, {}, "org.a11y.atspi.Event.Object", {}, this, SLOT(hear(QDBusMessage)));
        });
        QDBusConnection::connectToPeer(m_server.address(), "announcements");
        EXPECT_TRUE(QTest::qWaitFor([this] { return m_connection.isConnected(); }));
    }
    ~Bus() override { QDBusConnection::disconnectFromPeer("announcements"); }

    /// The program's end of it.
    static QDBusConnection end() { return QDBusConnection("announcements"); }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        ++asked;
        EXPECT_EQ(message.member(), "GetRegisteredEvents");
        connection.send(answer.isValid() ? message.createReply(answer)
                                         : message.createErrorReply(QDBusError::Failed, "no answer"));
        return true;
    }
    QString introspect(const QString&) const override { return {}; }

    void answerWith(const QList<Listener>& listeners) { answer = QVariant::fromValue(listeners); }

    QVariant answer;
    int asked = 0;
    QStringList heard; ///< an event each: "path: event kind text"

private Q_SLOTS:
    void hear(const QDBusMessage& message)
    {
        heard << message.path().section('/', -1) + ": " + message.member() + " " +
                     message.arguments().value(0).toString() + " " +
                     qvariant_cast<QDBusVariant>(message.arguments().value(3)).variant().toString();
    }

private:
    QDBusServer m_server;
    QDBusConnection m_connection{"none"};
};

class Announcement : public testing::Test
{
protected:
    void SetUp() override
    {
        field.setToolTip("what to look for");
        window.show();
        makeActive(&window);
        field.setFocus();
        ASSERT_EQ(QApplication::focusWidget(), &field);
    }

    static QString idOf(QWidget& widget)
    {
        return QString::number(QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&widget)));
    }

    Bus bus;
    QWidget window;
    QLineEdit field{&window};
};

} // namespace

Q_DECLARE_METATYPE(Listener)

TEST_F(Announcement, IsSentFromItsWindowWhereSomebodyListens)
{
    bus.answerWith({{":1.4", "object:state-changed"}, {":1.4", "Object:Announcement:"}});
    announceOver(bus.end(), window, "Mt:1:2 text");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !bus.heard.isEmpty(); }));
    EXPECT_EQ(bus.heard, QStringList(idOf(window) + ": Announcement  Mt:1:2 text"));
}

TEST_F(Announcement, IsANewDescriptionOfTheFocusedControlWhereNobodyDoes)
{
    bus.answerWith({{":1.4", "object:state-changed"}});
    announceOver(bus.end(), window, "Mt:1:2 text");
    EXPECT_TRUE(QTest::qWaitFor([&] { return bus.heard.size() == 2; }));
    EXPECT_EQ(bus.heard,
              QStringList({idOf(field) + ": PropertyChange accessible-description Mt:1:2 text",
                           idOf(field) + ": PropertyChange accessible-description what to look for"}));
}

TEST_F(Announcement, WithoutAFocusIsNoDescription)
{
    bus.answerWith({});
    field.clearFocus();
    announceOver(bus.end(), window, "Mt:1:2 text");
    EXPECT_TRUE(QTest::qWaitFor([&] { return bus.asked == 1; }));
    QTest::qWait(50);
    EXPECT_EQ(bus.heard, QStringList());
}

TEST_F(Announcement, IsSentWhereTheRegistryGivesNoAnswer)
{
    announceOver(bus.end(), window, "Mt:1:2 text");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !bus.heard.isEmpty(); }));
    EXPECT_EQ(bus.heard, QStringList(idOf(window) + ": Announcement  Mt:1:2 text"));
}

TEST_F(Announcement, ComesToNothingWhenItsWindowHasGoneMeanwhile)
{
    auto* gone = new QWidget;
    bus.answerWith({{":1.4", "object:announcement"}});
    announceOver(bus.end(), *gone, "Mt:1:2 text");
    delete gone;
    EXPECT_TRUE(QTest::qWaitFor([&] { return bus.asked == 1; }));
    QTest::qWait(50);
    EXPECT_EQ(bus.heard, QStringList());
}

#include "announcement_linux_test.moc"
