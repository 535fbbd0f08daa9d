#pragma once

#include <QString>

class RunTimeError;

/// The title of every box that names no other.
extern const QString SystemTitle;

/// An information box. Returns when the user has read it.
void ShowInfo(const QString& text, const QString& title = SystemTitle);

/// A question box with 是 and 否. True for 是; closing the box in any other way is 否.
bool AskYesNo(const QString& text, const QString& title = SystemTitle);

/// The same before something is destroyed for good: 否 is the default, so that a nervous Enter destroys
/// nothing.
bool AskBeforeDestroying(const QString& text, const QString& title = SystemTitle);

/// An information box with the description of an error, as the driver or the run time words it, and under
/// it what the user should do, where the error says more than that.
void ShowErrorMessage(const RunTimeError& error);

/// What a file dialog asks for.
struct FileQuestion {
    QString title;
    QString filter;      ///< captions and patterns in turn: "JPEG Images|*.jpg|GIF Images|*.gif"
    QString start;       ///< the file or folder it starts from; empty: the user's own folder
    bool isSave = false; ///< a file to be written, with the ending of the chosen pattern where none is
                         ///< typed; whether it may be replaced asks who writes it. Otherwise one that exists
};

/// A file dialog. The full path that was chosen, empty when none was.
QString AskFile(const FileQuestion& question);

/// Where boxes go. The program shows message boxes; tests put a recorder with scripted answers here.
class MessagePresenter {
public:
    MessagePresenter() = default;
    virtual ~MessagePresenter() = default;
    MessagePresenter(const MessagePresenter&) = delete;
    MessagePresenter& operator=(const MessagePresenter&) = delete;

    virtual void Inform(const QString& title, const QString& text) = 0;
    virtual bool Ask(const QString& title, const QString& text) = 0;
    virtual bool AskBeforeDestroying(const QString& title, const QString& text) = 0;
    /// Without a presenter of files none is chosen.
    virtual QString ChooseFile(const FileQuestion& /*question*/) { return {}; }
};

/// Replaces the presenter; nullptr brings the message boxes back. The caller keeps ownership.
void SetMessagePresenter(MessagePresenter* presenter);
