// Opening a link by the desktop's own program, which a script stands for here.
#include "desktop/Platform.h"
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <unistd.h>

namespace {

/// A search path of one folder with a blank in its name.
class Links : public testing::Test
{
protected:
    Links()
        : oldPath(qgetenv("PATH"))
    {
        QDir(top.path()).mkdir("a folder");
        qputenv("PATH", folder().toUtf8());
    }
    ~Links() override { qputenv("PATH", oldPath); }

    QString folder() const { return top.filePath("a folder"); }

    /// A program that writes down, a line each: its arguments between bars, its folder, what it holds open.
    void putProgram(const QString& path)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\nPATH=" + oldPath + "\nexec >" + top.filePath("part").toUtf8() +
                   "\nprintf '%s|' \"$@\"; echo\npwd -P\nls /proc/$$/fd | tr '\\n' ' '; echo\n"
                   "readlink /proc/$$/fd/0 /proc/$$/fd/2\nmv " +
                   top.filePath("part").toUtf8() + " " + top.filePath("record").toUtf8() + "\n");
        file.close();
        file.setPermissions(file.permissions() | QFile::ExeOwner);
    }

    /// What it wrote, once it has.
    QStringList record()
    {
        QFile file(top.filePath("record"));
        for (int i = 0; i < 250 && !file.open(QIODevice::ReadOnly); ++i)
            QTest::qWait(20);
        return file.isOpen() ? QString::fromUtf8(file.readAll()).split('\n') : QStringList();
    }

    QTemporaryDir top;
    QByteArray oldPath;
};

} // namespace

TEST_F(Links, AreHandedToTheDesktopsProgramAsOneArgument)
{
    putProgram(folder() + "/xdg-open");
    Platform().openLink(QUrl("mailto:a@b.example?subject=x y;'$(z)"));
    EXPECT_EQ(record().value(0), "mailto:a@b.example?subject=x%20y;'$(z)|");
}

TEST_F(Links, AreNotTakenForACommandLine)
{
    putProgram(top.filePath("a")); // what the path of the opener begins with, up to its blank
    putProgram(folder() + "/xdg-open");
    Platform().openLink(QUrl("https://www.example/"));
    EXPECT_EQ(record().value(0), "https://www.example/|");
}

TEST_F(Links, AreOpenedInTheProgramsOwnDirectory)
{
    putProgram(folder() + "/xdg-open");
    const QString before = QDir::currentPath();
    QDir::setCurrent("/");
    Platform().openLink(QUrl("https://www.example/"));
    QDir::setCurrent(before);
    EXPECT_EQ(record().value(1), QDir(QCoreApplication::applicationDirPath()).canonicalPath());
}

TEST_F(Links, AreOpenedByAProgramThatHoldsNothingOfOursOpen)
{
    putProgram(folder() + "/xdg-open");
    ASSERT_EQ(dup2(STDERR_FILENO, 77), 77); // a descriptor as it might be inherited: open across exec
    Platform().openLink(QUrl("https://www.example/"));
    close(77);
    const QStringList lines = record();
    EXPECT_FALSE(lines.value(2).split(' ').contains("77")) << lines.value(2).toStdString();
    EXPECT_EQ(lines.value(3), "/dev/null");
    EXPECT_EQ(lines.value(4), "/dev/null");
}

TEST_F(Links, GoNowhereWithoutTheDesktopsProgram)
{
    Platform().openLink(QUrl("https://www.example/"));
    QTest::qWait(200);
    EXPECT_FALSE(QFile::exists(top.filePath("record")));
}
