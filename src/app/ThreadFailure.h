#pragma once

/// Ends the process at once when there is no memory for a thread. QThread::start() only prints that, and Qt
/// then waits for ever for what the thread should do. To be called before there is a QApplication, which
/// starts threads already.
void endWhenThreadsFail();
