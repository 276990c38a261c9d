#pragma once

#include "store/DataSource.h"
#include "widgets/Form.h"

class MapPicture;
class QLabel;
class QScrollArea;
class SoftBttn;

/// The map display window: one map with its description in the caption, to be enlarged and copied. The
/// window always fits the picture.
///
/// Another window hands a map over by setting the flags `MapFirstShow` to 1 and `MapZoomed` to 0, the
/// stretching of `Image1` off, and the record source of `DataMap` to an SQL text whose first row is the map,
/// refreshing it, and setting this window's state to normal and activating it.
class ChildMapDsp : public Form
{
    Q_OBJECT

public:
    explicit ChildMapDsp(Shell& shell);

    DataSource DataMap;
    MapPicture* Image1;
    QLabel* lblMapDesc; ///< hidden: the caption shows the description
    SoftBttn* cmdZoom;
    SoftBttn* cmdPicCopy;

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Resize() override;
    bool Form_KeyDown(QKeyEvent& event) override;

private:
    void DataMap_Reposition();
    void Image1_DragComplete();
    void cmdZoom_Click();
    void cmdPicCopy_Click();

    void fitWindow();

    QScrollArea* m_surface; ///< holds the controls, for a maximised window that is smaller than the map
};
