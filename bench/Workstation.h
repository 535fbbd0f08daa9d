#pragma once

#include "bench/Replay.h"
#include "core/common/Messages.h"

#include <QString>
#include <QTextStream>

#include <functional>

/// The program as a person at one workstation works it, with each action beside its replay. Its windows
/// are the real ones, off-screen; keys go to the widget that has the focus.
class Workstation : private MessagePresenter {
public:
    /// Tickets go by turns to so many lots and buyers: after as many saves each has been sold to before,
    /// and the server has its pages at hand.
    static constexpr int LotsInTurn = 25;

    /// `programFolder` is an installation: Config.ini, and Data/Data.ini of the database.
    Workstation(const QString& programFolder, QTextStream& samples);
    ~Workstation() override;

    /// Logs on, which is not measured, and opens the main window.
    void StartMainWindow(const QString& action);
    void CloseMainWindow();

    /// Opens the till from its menu and enters a ticket up to its last field.
    void OpenTill();
    /// One digit after the other typed over the pieces of the entered ticket.
    void TypePieces(int keystrokes, bool isWarmUp);
    /// Tickets on credit to a buyer with a limit, under stock control, of lots with a deposit: the longest
    /// road through a save.
    void SaveTickets(int tickets, bool isWarmUp);
    /// The entered ticket printed, as its save does it: until the document is handed over.
    void PrintTickets(int tickets);
    void CloseTill();

    /// A settlement of a lot on the screen, printed as its save does it.
    void PrintSettlements(int settlements);

    /// Opens the list of the open lots, and rebuilds it, short and with every stock figure.
    void FillGoodsList(int fills);

    /// Resident memory of this process, kilobytes.
    static int ResidentMemory();

private:
    using Rewrite = std::function<QString(QString statement)>;

    void Inform(const QString& title, const QString& text) override;
    bool Ask(const QString& title, const QString& text) override;
    bool AskBeforeDestroying(const QString& title, const QString& text) override;

    void Show(const QString& menu, const QString& window);
    void CloseWindow(const QString& window);
    template <typename Control>
    Control* Find(const QString& window, const QString& control);
    void Type(const QString& window, const QString& control, const QString& text);
    void EnterTicket();

    /// Takes the time of an action, then that of its statements replayed. Without a name: a warm-up.
    void Measure(const QString& name, const std::function<void()>& action, const Rewrite& rewrite = nullptr);
    /// Prints the first document of its kind, then so many more. The documents are not kept.
    void Print(const QString& action, int documents, const std::function<void()>& print);
    void FillGoodsListIn(const QString& action, const QString& bolShowEStore, int fills);

    QString m_iniPath;
    QTextStream& m_samples;
    Replay m_replay;
    std::vector<QString> m_statements;
    QStringList m_lots;
    QStringList m_buyers;
    int m_ticket = 0;
};
