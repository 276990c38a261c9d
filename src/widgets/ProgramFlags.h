#pragma once

#include <cstdint>

/// The value of `StartFormMode` while the start window serves as the About window.
inline constexpr std::int16_t startFormIsAbout = 3;

/// What the whole program remembers while it runs, and forgets when it ends.
struct ProgramFlags
{
    std::int16_t StartFormMode = 0;   ///< startFormIsAbout once the About window was opened; never set back
    std::int16_t NotepadLaunched = 0; ///< 3 once the text editor has been started; never cleared
    std::int16_t MapFirstShow = 0;    ///< 1 when a newly chosen map must be fitted at the next activation
    std::int16_t MapZoomed = 0;       ///< 1 while the map is shown enlarged
};
