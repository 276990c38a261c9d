#pragma once

#include <memory>
#include <QByteArray>

/// The name that the one running copy of a program holds. It lives in no folder, is taken by one process at a
/// time in one step, and is free again the moment its owner ends, however it ends.
///
/// Any user may take any such name first, to keep another user's program from starting. So it is asked who
/// owns a name, and a name that a stranger holds is passed by for the next one: the same with "-1", "-2" and
/// so on behind it.
class InstanceName
{
public:
    /// How many names are tried.
    static constexpr int candidates = 4;

    /// Of this program, as its file, run by this user.
    static QByteArray ofThisProgram();

    /// name: letters, digits and hyphens, at most 100 where it is a socket's.
    explicit InstanceName(QByteArray name);
    ~InstanceName();
    InstanceName(const InstanceName&) = delete;
    InstanceName& operator=(const InstanceName&) = delete;

    /// Takes the name. False when another process of this user holds it. True also when no name can be had,
    /// because strangers hold all of them or the system has nothing left to hold one by.
    bool take();
    /// Gives the name back; does nothing when it is not held.
    void giveBack();

private:
    struct Held; ///< what the system holds the name by

    QByteArray candidate(int number) const;

    const QByteArray m_name;
    std::unique_ptr<Held> m_held;
};
