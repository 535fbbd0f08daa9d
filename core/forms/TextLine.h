#pragma once

#include <QObject>
#include <QString>

class QLineEdit;

/// What every text box does with its text, however that comes: by key, paste, drop or input method.
///
/// - It is one line: line breaks and tabs that come with a pasted text become one blank, since no key
///   types them again to find the row.
/// - A limit of characters holds for what is typed and never for what the program writes, which may be a
///   number made longer by its grouping.
/// - A small hint tells that a text is too long, or holds what no statement can carry.
/// - A locked box shows the beginning of a long text, not its end.
class TextLine : public QObject {
    Q_OBJECT

public:
    /// The one of a box, made at the first call.
    static TextLine& Of(QLineEdit* box);

    /// The box takes so many characters at the most; what a longer paste has beyond is cut.
    void SetLimit(int characters) { m_limit = characters; }
    /// A ' or \ does no harm here: it goes into no statement, or is refused with words of its own.
    void SetQuotesHarmless() { m_areQuotesHarmless = true; }

signals:
    /// The text is another, by hand or from code. Comes once for each change, with the text as it stands.
    void Changed(const QString& text);

private:
    explicit TextLine(QLineEdit* box);
    void Edited();
    void Follow(const QString& text);
    void Hint(const QString& words);

    QLineEdit* m_box;
    int m_limit = -1; ///< none
    bool m_areQuotesHarmless = false;
    bool m_isRestoring = false; ///< nothing of what came in was taken
    QString m_text;             ///< as last told
};
