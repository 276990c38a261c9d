#pragma once

#include <QDialog>

class LinkLabel;
class Program;
class QLabel;
class QTimer;
class SoftBttn;

/// The start window. As the splash it checks the installation, shows its picture for two seconds and opens
/// the main frame; once `StartFormMode` is 3 it serves as the About window.
class frmStart : public QDialog
{
    Q_OBJECT

public:
    /// owner: the frame over which the About window stands; none for the splash.
    explicit frmStart(Program& program, QWidget* owner = nullptr);

    /// Form_Load; false when a start-up check failed and the program is to end at once.
    bool load();

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    bool Form_Load();
    void Form_Activate();
    void Timer1_Timer();
    void cmdMore_Click();
    void cmdDonation_Click();
    void cmdQORV_Click();
    void cmdMail_Click();
    void Image2_Click();
    void cmdOK_Click();

    bool isAbout() const;
    bool passesChecks();
    void hideAboutControls();
    void layOutAbout();

    QLabel* Image1;
    LinkLabel* Image2;
    LinkLabel* cmdMail;
    SoftBttn* cmdMore;
    SoftBttn* cmdDonation;
    SoftBttn* cmdQORV;
    SoftBttn* cmdOK;
    QTimer* Timer1;

    Program& m_program;
};
