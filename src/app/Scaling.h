#pragma once

/// Takes out of the environment what Qt would scale the windows by, where no screen could show them so: a
/// factor of 0 or "nan", 100,000 dots to an inch. To be called before there is a QApplication, which reads
/// it.
void ignoreSenselessScaling();

/// Whether the screen is scaled so that windows can be shown on it. Its own settings may make no sense
/// either. Needs a QApplication.
bool isScreenUsable();
