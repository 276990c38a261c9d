#pragma once

#include <QDialog>

class Program;
class QLabel;
class QTimer;

/// The start window. As the splash it checks the installation, shows its picture for two seconds and opens
/// the main frame; once `StartFormMode` is 3 it serves as the About window.
class frmStart : public QDialog
{
    Q_OBJECT

public:
    explicit frmStart(Program& program);

    /// Form_Load; false when a start-up check failed and the program is to end at once.
    bool load();

    QLabel* Image1;
    QTimer* Timer1;

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool Form_Load();
    void Form_Activate();
    void Timer1_Timer();

    bool passesChecks();

    Program& m_program;
};
