#pragma once

#include "help/ShippedHelp.h"
#include "support/Session.h"
#include <QFile>
#include <QTemporaryDir>

/// A session in a folder of its own, with the help file as it is shipped.
class SessionWithHelp : public Session
{
protected:
    void SetUp() override
    {
        QFile::copy(helpSource, folder.filePath("KESTREL.HLP"));
        QFile::copy(KESTREL_INSTALL_DIR "/KESTRPT.DAT", folder.filePath("KESTRPT.DAT"));
        program = std::make_unique<Program>(folder.path());
        program->showFrame();
        makeActive(&frame());
        QTest::qWait(0);
    }

    QTemporaryDir folder;
};
