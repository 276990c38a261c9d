#include "app/Application.h"
#include "app/Program.h"

int main(int, char* argv[])
{
    Application application(argv);
    Program program(QCoreApplication::applicationDirPath());
    if (!program.start())
        return 1;
    return QCoreApplication::exec();
}
