#pragma once

#include "widgets/Form.h"

class DataControl;
class MapPicture;
class QLabel;
class QScrollArea;
class SoftBttn;

/// The map display window: one map with its description in the caption, to be enlarged and copied. The
/// window always fits the picture.
class ChildMapDsp : public Form
{
    Q_OBJECT

public:
    explicit ChildMapDsp(Shell& shell);

    /// Shows a map of the table `NTMaps`, from 1, in its natural size: the window in its normal state, fitted
    /// to the picture, and active. Throws DataError.
    void showMap(int number);

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

    DataControl* DataMap;
    QWidget* m_content;
    MapPicture* Image1;
    QLabel* lblMapDesc; ///< hidden: the caption shows the description
    SoftBttn* cmdZoom;
    SoftBttn* cmdPicCopy;

    QScrollArea* m_surface; ///< holds the controls, for a maximised window that is smaller than the map
};
