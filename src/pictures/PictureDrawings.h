#pragma once

#include "pictures/Pictures.h"
#include <span>

class PictureCanvas;

struct PictureDrawing
{
    PictureId id;
    void (*draw)(PictureCanvas&);
};

/// One for each picture, in the order of their ids.
std::span<const PictureDrawing> pictureDrawings();
