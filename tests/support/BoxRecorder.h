#pragma once

#include "core/common/Messages.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

/// Stands in for the message boxes. Every box must have been expected, in order and to the letter; what
/// was expected must come. Call Verify at the end of a test.
class BoxRecorder : public MessagePresenter {
public:
    /// The next box is an information box with this text.
    void Expect(const QString& text, const QString& title = SystemTitle);
    /// The next box is a question with this text, answered like this.
    void ExpectQuestion(const QString& text, bool answer, const QString& title = SystemTitle);
    /// The same, and 否 is its default, since it destroys.
    void ExpectDestroying(const QString& text, bool answer, const QString& title = SystemTitle);
    /// The next box is an information box whose text contains this (for driver texts).
    void ExpectContaining(const QString& part);
    /// A file dialog with this filter, in which this path is chosen; an empty one cancels it.
    void ExpectFile(const QString& filter, const QString& chosen);
    /// Runs while the next box stands open.
    void WhileOpen(std::function<void()> action) { m_whileOpen = std::move(action); }

    /// Texts of all boxes so far.
    const QStringList& Seen() const { return m_seen; }
    /// Fails the test for expected boxes that never came.
    void Verify();

    void Inform(const QString& title, const QString& text) override;
    bool Ask(const QString& title, const QString& text) override;
    bool AskBeforeDestroying(const QString& title, const QString& text) override;
    QString ChooseFile(const FileQuestion& question) override;
    /// The last file dialog.
    const FileQuestion& LastFileQuestion() const { return m_lastFileQuestion; }

private:
    enum class Kind { Information, Question, Destroying };
    struct Expected {
        QString title;
        QString text;
        Kind kind = Kind::Information;
        bool answer = false;
        bool isPart = false;
    };
    bool Meet(const QString& title, const QString& text, Kind kind);

    QList<Expected> m_expected;
    struct ExpectedFile {
        QString filter;
        QString chosen;
    };
    QList<ExpectedFile> m_expectedFiles;
    FileQuestion m_lastFileQuestion;
    QStringList m_seen;
    std::function<void()> m_whileOpen;
};
