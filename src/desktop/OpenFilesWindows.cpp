#include "desktop/OpenFiles.h"

// Windows sets a process no such limit.
bool canOpenFiles(int)
{
    return true;
}
