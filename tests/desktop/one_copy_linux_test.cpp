// The name that a copy holds, and strangers who want it.
#include "desktop/InstanceName.h"
#include <csignal>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr uid_t nobody = 65534;

/// A process of another user that holds names, as a test may have it only as root. It ends with this object.
class Stranger
{
public:
    /// listens: whether it answers those who ask who it is.
    Stranger(const QList<QByteArray>& names, bool listens = true)
    {
        int ready[2];
        if (pipe(ready) != 0)
            std::abort();
        m_process = fork();
        if (m_process == 0)
            hold(names, listens, ready[1]);
        char sign = 0;
        EXPECT_EQ(read(ready[0], &sign, 1), 1);
        close(ready[0]);
        close(ready[1]);
    }
    ~Stranger()
    {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    Stranger(const Stranger&) = delete;
    Stranger& operator=(const Stranger&) = delete;

private:
    [[noreturn]] static void hold(const QList<QByteArray>& names, bool listens, int ready)
    {
        if (setuid(nobody) != 0)
            _exit(1);
        for (const QByteArray& name : names) {
            sockaddr_un address{};
            address.sun_family = AF_UNIX;
            std::memcpy(address.sun_path + 1, name.constData(), static_cast<std::size_t>(name.size()));
            const auto length =
                static_cast<socklen_t>(sizeof(sa_family_t) + 1) + static_cast<socklen_t>(name.size());
            const int handle = socket(AF_UNIX, SOCK_STREAM, 0);
            if (bind(handle, reinterpret_cast<const sockaddr*>(&address), length) != 0 ||
                (listens && listen(handle, 1) != 0))
                _exit(1);
        }
        if (write(ready, "!", 1) != 1)
            _exit(1);
        for (;;)
            pause();
    }

    pid_t m_process = -1;
};

/// A name that is taken, by us, and that nobody listens to yet.
class Beginner
{
public:
    explicit Beginner(const QByteArray& name)
        : m_socket(socket(AF_UNIX, SOCK_STREAM, 0))
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::memcpy(address.sun_path + 1, name.constData(), static_cast<std::size_t>(name.size()));
        const auto length =
            static_cast<socklen_t>(sizeof(sa_family_t) + 1) + static_cast<socklen_t>(name.size());
        EXPECT_EQ(bind(m_socket, reinterpret_cast<const sockaddr*>(&address), length), 0);
    }
    ~Beginner() { close(m_socket); }
    Beginner(const Beginner&) = delete;
    Beginner& operator=(const Beginner&) = delete;

    void listen() { EXPECT_EQ(::listen(m_socket, 1), 0); }

private:
    int m_socket;
};

class OneCopyAmongStrangers : public testing::Test
{
protected:
    void SetUp() override
    {
        if (geteuid() != 0)
            GTEST_SKIP() << "only root can become another user";
    }

    QList<QByteArray> allCandidates() const
    {
        QList<QByteArray> names = {name};
        for (int i = 1; i < InstanceName::candidates; ++i)
            names << name + "-" + QByteArray::number(i);
        return names;
    }

    const QByteArray name = "kestrel-test-" + QByteArray::number(getpid());
};

} // namespace

TEST_F(OneCopyAmongStrangers, PassesANameByThatAStrangerHolds)
{
    const Stranger stranger({name});
    InstanceName first(name);
    EXPECT_TRUE(first.take());
    EXPECT_FALSE(InstanceName(name).take()) << "there are two copies";
    first.giveBack();
    EXPECT_TRUE(InstanceName(name).take());
}

TEST_F(OneCopyAmongStrangers, IsStillTheOneWhenTheStrangerHasGone)
{
    auto stranger = std::make_unique<Stranger>(QList<QByteArray>{name});
    InstanceName first(name);
    ASSERT_TRUE(first.take());
    stranger.reset();
    EXPECT_FALSE(InstanceName(name).take());
}

TEST_F(OneCopyAmongStrangers, PassesANameByWhoseHolderDoesNotSayWhoHeIs)
{
    constexpr bool listens = false;
    const Stranger silent({name}, listens);
    InstanceName first(name);
    EXPECT_TRUE(first.take());
    EXPECT_FALSE(InstanceName(name).take());
}

TEST_F(OneCopyAmongStrangers, StartsWhenStrangersHoldEveryName)
{
    const Stranger stranger(allCandidates());
    EXPECT_TRUE(InstanceName(name).take());
}

TEST(OneCopyAtOnce, WaitsForACopyThatHasTheNameAndIsAboutToSaySo)
{
    const QByteArray name = "kestrel-test-beginner-" + QByteArray::number(getpid());
    Beginner beginner(name);
    std::thread soon([&] {
        usleep(50'000);
        beginner.listen();
    });
    EXPECT_FALSE(InstanceName(name).take());
    soon.join();
}

TEST(OneCopyAtOnce, StartsWhereTheSystemGivesNoSocket)
{
    const QByteArray name = "kestrel-test-none-" + QByteArray::number(getpid());
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit none{0, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    InstanceName first(name);
    const bool starts = first.take();
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_TRUE(starts);
    EXPECT_TRUE(InstanceName(name).take()) << "a name was taken all the same";
}
