#pragma once

#include <functional>
#include <QRect>
#include <QString>

inline const QString applicationTitle = QStringLiteral("Kestrel Reader: Portuguese Version");

enum class MsgIcon { Stop, Question, Exclamation, Information };
enum class MsgButtons { Ok, YesNo };
enum class MsgAnswer { Ok, Yes, No };

/// The one door of every message box: shows the text, waits, and gives the answer. Closing a box by Esc
/// answers Ok, or No where the box asks. Lines of the text are parted by CR LF.
class MsgBox
{
public:
    struct Message
    {
        QString text;
        MsgIcon icon;
        MsgButtons buttons;
        QString title;
        QRect announced; ///< on the screen: what the text speaks of, and the box does not cover if it can
    };
    using BackEnd = std::function<MsgAnswer(const Message&)>;

    static MsgAnswer show(const QString& text, MsgIcon icon, MsgButtons buttons = MsgButtons::Ok,
                          const QString& title = applicationTitle, const QRect& announced = {});

    /// Replaces what shows the boxes; an empty function brings the real boxes back.
    static void setBackEnd(BackEnd backEnd);
};
