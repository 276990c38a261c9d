#include "app/TextWindow.h"

#include "app/EscCloses.h"
#include "widgets/Fonts.h"
#include "widgets/PlainText.h"
#include "widgets/Twips.h"
#include <QVBoxLayout>

TextWindow::TextWindow(const QString& name, const QString& caption, const QString& text, QWidget* owner)
    : QDialog(owner)
    , Text1(new PlainText(this))
{
    setObjectName(name);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(caption);
    new EscCloses(*this);
    Text1->setObjectName("Text1");
    Text1->setAccessibleName(caption);
    Text1->setFont(Fonts::tahomaOf(10));
    Text1->setReadOnly(true);
    Text1->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    Text1->setPlainText(text);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Text1);
    resize(toPixels(7200), toPixels(6000));
}
