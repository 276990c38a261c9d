// A name is that of a mutex, in the namespace that all sessions share.
#include "desktop/InstanceName.h"

#include <aclapi.h>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <sddl.h>
#include <utility>
#include <vector>

namespace {

/// Memory that Windows allotted for an answer.
template <class T>
class LocalMemory
{
public:
    LocalMemory() = default;
    ~LocalMemory() { LocalFree(m_memory); }
    LocalMemory(const LocalMemory&) = delete;
    LocalMemory& operator=(const LocalMemory&) = delete;

    T get() const { return m_memory; }
    T* out() { return &m_memory; }

private:
    T m_memory = nullptr;
};

/// A handle that is closed when it goes out of scope. A failure, nullptr or INVALID_HANDLE_VALUE, is none.
class Handle
{
public:
    explicit Handle(HANDLE handle = nullptr)
        : m_handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle)
    {
    }
    ~Handle()
    {
        if (m_handle)
            CloseHandle(m_handle);
    }
    Handle(Handle&& other) noexcept
        : m_handle(std::exchange(other.m_handle, nullptr))
    {
    }
    Handle& operator=(Handle&&) = delete;

    HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

/// Who runs this process: a TOKEN_USER. Empty when Windows does not say.
std::vector<char> thisUser()
{
    HANDLE opened = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &opened))
        return {};
    const Handle token(opened);
    DWORD size = 0;
    GetTokenInformation(token.get(), TokenUser, nullptr, 0, &size);
    std::vector<char> user(size);
    if (!GetTokenInformation(token.get(), TokenUser, user.data(), size, &size))
        return {};
    return user;
}

PSID sidOf(std::vector<char>& user)
{
    return reinterpret_cast<TOKEN_USER*>(user.data())->User.Sid;
}

/// The same in letters and digits.
QString thisUserSpelt()
{
    std::vector<char> user = thisUser();
    LocalMemory<wchar_t*> spelt;
    if (user.empty() || !ConvertSidToStringSidW(sidOf(user), spelt.out()))
        return {};
    return QString::fromWCharArray(spelt.get());
}

bool isOurs(HANDLE mutex)
{
    std::vector<char> user = thisUser();
    PSID owner = nullptr;
    LocalMemory<PSECURITY_DESCRIPTOR> description;
    return !user.empty() &&
           GetSecurityInfo(mutex, SE_KERNEL_OBJECT, OWNER_SECURITY_INFORMATION, &owner, nullptr, nullptr,
                           nullptr, description.out()) == ERROR_SUCCESS &&
           owner && EqualSid(owner, sidOf(user));
}

enum class Holder { Nobody, Ourselves, Stranger };

/// A mutex that we may not open, or that is none, is a stranger's.
Holder holderOf(const std::wstring& name)
{
    const Handle mutex(OpenMutexW(READ_CONTROL, FALSE, name.c_str()));
    if (!mutex.get())
        return GetLastError() == ERROR_FILE_NOT_FOUND ? Holder::Nobody : Holder::Stranger;
    return isOurs(mutex.get()) ? Holder::Ourselves : Holder::Stranger;
}

/// A mutex that this user owns and only this user may open. Unless told otherwise, Windows lets the group of
/// administrators own what one of them makes, and isOurs() could not tell them apart. No handle when the name
/// is taken.
Handle create(const std::wstring& name)
{
    const std::wstring user = thisUserSpelt().toStdWString();
    LocalMemory<PSECURITY_DESCRIPTOR> description;
    SECURITY_ATTRIBUTES attributes{sizeof attributes, nullptr, FALSE};
    const std::wstring wanted = L"O:" + user + L"D:P(A;;GA;;;" + user + L")";
    if (ConvertStringSecurityDescriptorToSecurityDescriptorW(wanted.c_str(), SDDL_REVISION_1,
                                                             description.out(), nullptr))
        attributes.lpSecurityDescriptor = description.get();
    Handle mutex(CreateMutexW(&attributes, FALSE, name.c_str()));
    if (GetLastError() == ERROR_ALREADY_EXISTS)
        return Handle();
    return mutex;
}

/// The executable's path as the file system has it, whatever way and spelling led to it.
QString executable()
{
    const QString path = QDir::toNativeSeparators(QCoreApplication::applicationFilePath());
    const Handle file(CreateFileW(path.toStdWString().c_str(), 0,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, 0, nullptr));
    std::vector<wchar_t> found(32768); // the longest path
    const DWORD length =
        file.get() ? GetFinalPathNameByHandleW(file.get(), found.data(), static_cast<DWORD>(found.size()), 0)
                   : 0;
    const bool known = length > 0 && length < found.size();
    return (known ? QString::fromWCharArray(found.data(), static_cast<qsizetype>(length)) : path).toLower();
}

} // namespace

struct InstanceName::Held
{
    Handle mutex;
};

QByteArray InstanceName::ofThisProgram()
{
    const QByteArray digest =
        QCryptographicHash::hash(executable().toUtf8(), QCryptographicHash::Sha256).toHex().left(32);
    return "kestrel-reader-" + thisUserSpelt().toLatin1() + "-" + digest;
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
        if (holderOf(QString::fromLatin1(candidate(number)).toStdWString()) == Holder::Ourselves)
            return false;
    for (int number = 0; number < candidates; ++number) {
        const std::wstring name = QString::fromLatin1(candidate(number)).toStdWString();
        Handle mutex = create(name);
        if (mutex.get()) {
            m_held = std::make_unique<Held>(std::move(mutex));
            return true;
        }
        if (holderOf(name) == Holder::Ourselves) // another copy was quicker
            return false;
    }
    return true;
}

void InstanceName::giveBack()
{
    m_held.reset();
}

QByteArray InstanceName::candidate(int number) const
{
    const QByteArray global = "Global\\" + m_name;
    return number == 0 ? global : global + "-" + QByteArray::number(number);
}
