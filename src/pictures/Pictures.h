#pragma once

#include <QIcon>
#include <QList>
#include <QPixmap>

/// Every picture of the program, drawn by code and sharp at any size.
enum class PictureId {
    // Toolbar
    SelectVerse,
    Notepad,
    Search,
    StudyAids,
    About,
    // Selection window
    DisplayVerse,
    Examples,
    // Reading and chapter windows
    PreviousVerse,
    NextVerse,
    Chapter,
    Copy,
    FontSize,
    FontFace,
    Tip,
    // Search window
    Cancel,
    Help,
    NewSearch,
    CopyResults,
    // Map window
    Zoom,
    CopyMap,
    // About window and study aids
    MoreInfo,
    Donation,
    DiscOffer,
    Ok,
    Mail,
    Web,
    // The program itself
    Application,
};

/// A scalable icon. Painted, it takes the ink that suits the painter's background brush; asked for a pixmap,
/// the ink that suits the application's button face.
QIcon iconOf(PictureId id);

/// All of them in the order above, for tests and contact sheets.
const QList<PictureId>& allPictures();

/// The picture of the start window, 480 x 376 device-independent pixels, with the credit of the text at its
/// foot.
QPixmap splashPicture(qreal devicePixelRatio);
