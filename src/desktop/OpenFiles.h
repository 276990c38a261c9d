#pragma once

/// Whether so many more files can be opened at one time. Where the limit is lower, Qt and the libraries below
/// it end the process by a signal, or wait for ever.
bool canOpenFiles(int count);
