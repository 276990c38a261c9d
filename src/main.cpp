#include "app/Application.h"
#include "app/Program.h"
#include "app/Scaling.h"
#include "app/ThreadFailure.h"
#include "desktop/OpenFiles.h"
#include <cstdio>

int main(int, char* argv[])
{
    constexpr int files = 16; // the program has 11 open, besides the three that every process has
    if (!canOpenFiles(files)) {
        std::fprintf(
            stderr, "kestrel-reader: cannot open %d files at one time; raise the limit (ulimit -n)\n", files);
        return 1;
    }
    endWhenThreadsFail(); // before there is a QApplication, which starts threads and waits for them
    ignoreSenselessScaling();
    Application::keepLibrariesQuiet();
    Application application(argv);
    if (!isScreenUsable()) { // no message box could be read
        std::fputs("kestrel-reader: the screen's dots to an inch (Xft.dpi) make no sense\n", stderr);
        return 1;
    }
    Program program(QCoreApplication::applicationDirPath());
    if (!program.start())
        return 1;
    return QCoreApplication::exec();
}
