#pragma once

/// Where a control stands in its window, in twips.
struct ControlPlace
{
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/// The start window as the About window: its controls' places, and its own size, in twips.
struct AboutPlaces
{
    ControlPlace Image1;
    ControlPlace cmdOK;
    ControlPlace cmdMore;
    ControlPlace cmdDonation;
    ControlPlace cmdQORV;
    ControlPlace Image2;
    ControlPlace cmdMail;
    int windowWidth = 0;
    int windowHeight = 0;
};

/// Lays the row of buttons under the picture, up against its right edge, and fits the window around both. The
/// picture and every size stay as they are, and so do the left edges of the mail label and its picture.
AboutPlaces aboutLayout(AboutPlaces designed);
