#include "app/AboutLayout.h"

#include <initializer_list>

AboutPlaces aboutLayout(AboutPlaces places)
{
    auto& [Image1, cmdOK, cmdMore, cmdDonation, cmdQORV, Image2, cmdMail, windowWidth, windowHeight] = places;

    const int rowTop = Image1.top + Image1.height + 110;
    for (ControlPlace* button : {&cmdOK, &cmdMore, &cmdDonation, &cmdQORV})
        button->top = rowTop;

    cmdOK.left = Image1.left + Image1.width - cmdOK.width;
    cmdQORV.left = cmdOK.left - cmdQORV.width;
    cmdDonation.left = cmdQORV.left - cmdDonation.width;
    cmdMore.left = cmdDonation.left - cmdMore.width;

    Image2.top = cmdOK.top + 235;
    cmdMail.top = cmdOK.top + 285;

    windowHeight = cmdOK.top + cmdOK.height + 150;
    windowWidth = Image1.left + Image1.width + 150;
    return places;
}
