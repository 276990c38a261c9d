// A name is that of an abstract socket.
#include "desktop/InstanceName.h"

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFileInfo>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int tries = 100; // half a second in all
constexpr useconds_t betweenTries = 5000;

/// A socket that is closed when it goes out of scope.
class Socket
{
public:
    Socket()
        : m_handle(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
    {
    }
    ~Socket()
    {
        if (m_handle >= 0)
            close(m_handle);
    }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    int handle() const { return m_handle; }

private:
    int m_handle;
};

/// Calls bind() or connect() for a name in the abstract namespace, which a NUL before the name stands for.
template <class Call>
bool callWith(Call call, const Socket& socket, const QByteArray& name)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path + 1, name.constData(), static_cast<std::size_t>(name.size()));
    const auto length =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + static_cast<std::size_t>(name.size()));
    return call(socket.handle(), reinterpret_cast<const sockaddr*>(&address), length) == 0;
}

enum class Holder { Unknown, Ourselves, Stranger };

// A socket that was connected tells who called listen() at its other end.
Holder holderOf(const QByteArray& name)
{
    const Socket socket;
    ucred owner{};
    socklen_t length = sizeof owner;
    if (!callWith(connect, socket, name) ||
        getsockopt(socket.handle(), SOL_SOCKET, SO_PEERCRED, &owner, &length) != 0)
        return Holder::Unknown;
    return owner.uid == getuid() ? Holder::Ourselves : Holder::Stranger;
}

enum class Result { Taken, HeldByUs, HeldByStranger, NoSocket };

// A name whose holder is unknown may have been taken a moment ago, by a copy that is about to listen; or by a
// stranger who never will.
Result takeOrAsk(Socket& socket, const QByteArray& name)
{
    for (int i = 0; i < tries; ++i) {
        if (callWith(bind, socket, name))
            return listen(socket.handle(), SOMAXCONN) == 0 ? Result::Taken : Result::NoSocket;
        if (errno != EADDRINUSE)
            return Result::NoSocket;
        const Holder holder = holderOf(name);
        if (holder != Holder::Unknown)
            return holder == Holder::Ourselves ? Result::HeldByUs : Result::HeldByStranger;
        usleep(betweenTries);
    }
    return Result::HeldByStranger;
}

} // namespace

struct InstanceName::Held
{
    Socket socket;
};

QByteArray InstanceName::ofThisProgram()
{
    const QString executable = QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath();
    const QByteArray digest =
        QCryptographicHash::hash(executable.toUtf8(), QCryptographicHash::Sha256).toHex().left(32);
    return "kestrel-reader-" + QByteArray::number(getuid()) + "-" + digest;
}

InstanceName::InstanceName(QByteArray name)
    : m_name(std::move(name))
{
}

InstanceName::~InstanceName() = default;

bool InstanceName::take()
{
    // All of them first: a copy that passed a stranger by stays with its name after the stranger has gone.
    for (int number = 0; number < candidates; ++number)
        if (holderOf(candidate(number)) == Holder::Ourselves)
            return false;
    for (int number = 0; number < candidates; ++number) {
        auto held = std::make_unique<Held>();
        const Result result = takeOrAsk(held->socket, candidate(number));
        if (result == Result::HeldByUs)
            return false;
        if (result == Result::Taken)
            m_held = std::move(held);
        if (result != Result::HeldByStranger)
            break;
    }
    return true;
}

void InstanceName::giveBack()
{
    m_held.reset();
}

QByteArray InstanceName::candidate(int number) const
{
    return number == 0 ? m_name : m_name + "-" + QByteArray::number(number);
}
