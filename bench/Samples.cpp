#include "bench/Samples.h"

#include "bench/Replay.h"

#include <QFile>
#include <QStringList>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

const QString KeystrokeAction = u"keystroke in txtNum"_s;
const QString SaveAction = u"ticket save"_s;
const QString TicketDocument = u"ticket on paper"_s;
const QString SettlementDocument = u"settlement on paper"_s;

namespace {

// What the figures are held against. Shared machines are noisy, so a goal is reported and fails nothing.
constexpr double ReplayGoal = 1.5; // times the bare replay, for a save and a keystroke
constexpr double GrowthGoal = 1.3; // times the figure of the small database
constexpr int DocumentGoal = 50;   // milliseconds from the save to the document handed over
constexpr int MemoryGoal = 150;    // megabytes, with the till open

constexpr int KilobytesPerMegabyte = 1024;
const QString MemoryLine = u"memory"_s;

struct Column {
    QString header;
    int width = 0;
};

const std::vector<Column>& Columns()
{
    static const std::vector<Column> columns{
        {u"action"_s, -26},        {u"tickets"_s, 9},     {u"samples"_s, 7},     {u"statements"_s, 10},
        {u"replay ms"_s, 9},       {u"of writes"_s, 9},   {u"program ms"_s, 10}, {u"own ms"_s, 7},
        {u"program/replay"_s, 14}, {u"painted ms"_s, 10}, {u"growth"_s, 6},      {u"goals"_s, -24},
    };
    return columns;
}

QString Line(const QStringList& cells)
{
    QString line;
    for (std::size_t i = 0; i < Columns().size(); ++i) {
        const int width = Columns()[i].width;
        const QString cell = cells.value(static_cast<qsizetype>(i));
        line += (width < 0 ? cell.leftJustified(-width) : cell.rightJustified(width)) + u"  "_s;
    }
    while (line.endsWith(u' '))
        line.chop(1);
    return line + u'\n';
}

QString Grouped(int number)
{
    QString text = QString::number(number);
    for (auto at = text.size() - 3; at > 0; at -= 3)
        text.insert(at, u',');
    return text;
}

double Milliseconds(Nanoseconds time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

QString Shown(double number, int decimals)
{
    return QString::number(number, 'f', decimals);
}

double Median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const auto middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

/// One action on one database, milliseconds.
struct Figures {
    int samples = 0;
    double statements = 0;
    double program = 0;
    double painted = 0;
    double replay = 0;
    double own = 0;    ///< what the program adds to its replay, pair by pair
    double writes = 0; ///< the writes' share of the replay
};

Figures FiguresOf(const Measurement& measurement, const QString& action)
{
    std::vector<double> statements;
    std::vector<double> program;
    std::vector<double> painted;
    std::vector<double> replay;
    std::vector<double> own;
    std::vector<double> writes;
    for (const Sample& sample : measurement.samples) {
        if (sample.action != action)
            continue;
        statements.push_back(sample.statements);
        program.push_back(Milliseconds(sample.program));
        painted.push_back(Milliseconds(sample.painted));
        replay.push_back(Milliseconds(sample.replay));
        own.push_back(Milliseconds(sample.program - sample.replay));
        writes.push_back(Milliseconds(sample.replayWrites));
    }
    return {.samples = static_cast<int>(program.size()),
            .statements = Median(statements),
            .program = Median(program),
            .painted = Median(painted),
            .replay = Median(replay),
            .own = Median(own),
            .writes = Median(writes)};
}

QString Verdict(const QString& goal, bool isMet)
{
    return goal + (isMet ? u" met"_s : u" MISSED"_s);
}

bool HasReplayGoal(const QString& action)
{
    return action == SaveAction || action == KeystrokeAction;
}

bool IsDocument(const QString& action)
{
    return action == TicketDocument || action == SettlementDocument;
}

QString ActionLines(const QString& action, const Measurement& small, const Measurement& large)
{
    QString lines;
    const double before = FiguresOf(small, action).program;
    for (const Measurement* measurement : {&small, &large}) {
        const Figures figures = FiguresOf(*measurement, action);
        const bool isLarge = measurement == &large;
        const double ratio = figures.program / figures.replay;
        const double growth = figures.program / before;
        QStringList goals;
        if (HasReplayGoal(action))
            goals << Verdict(u"<=%1"_s.arg(ReplayGoal), ratio <= ReplayGoal);
        if (IsDocument(action))
            goals << Verdict(u"<%1 ms"_s.arg(DocumentGoal), figures.program < DocumentGoal);
        if (isLarge)
            goals << Verdict(u"growth <=%1"_s.arg(GrowthGoal), growth <= GrowthGoal);
        lines += Line({isLarge ? QString() : action, Grouped(measurement->tickets),
                       QString::number(figures.samples), QString::number(figures.statements),
                       Shown(figures.replay, 3), Shown(figures.writes, 3), Shown(figures.program, 3),
                       Shown(figures.own, 3), Shown(ratio, 2), Shown(figures.painted, 3),
                       isLarge ? Shown(growth, 2) : QString(), goals.join(u", "_s)});
    }
    return lines;
}

QString MemoryLines(const Measurement& measurement)
{
    const auto megabytes = [&measurement](int Memory::*which) {
        std::vector<double> values;
        for (const Memory& memory : measurement.memory)
            values.push_back(static_cast<double>(memory.*which) / KilobytesPerMegabyte);
        return Median(values);
    };
    const double till = megabytes(&Memory::till);
    return u"resident memory at %1 tickets: main window %2 MB, with the till open %3 MB (<%4 MB %5), "
           "at the end %6 MB\n"_s
               .arg(Grouped(measurement.tickets), Shown(megabytes(&Memory::frame), 1), Shown(till, 1))
               .arg(MemoryGoal)
               .arg(till < MemoryGoal ? u"met"_s : u"MISSED"_s, Shown(megabytes(&Memory::atEnd), 1));
}

} // namespace

void Write(QTextStream& file, const Sample& sample)
{
    file << sample.action << '\t' << sample.statements << '\t' << sample.writes << '\t'
         << qint64(sample.program.count()) << '\t' << qint64(sample.painted.count()) << '\t'
         << qint64(sample.replay.count()) << '\t' << qint64(sample.replayWrites.count()) << '\n';
}

void Write(QTextStream& file, const Memory& memory)
{
    file << MemoryLine << '\t' << memory.frame << '\t' << memory.till << '\t' << memory.atEnd << '\n';
}

Measurement ReadMeasurement(int tickets, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        GiveUp(u"cannot read "_s + path);
    Measurement measurement{.tickets = tickets, .samples = {}, .memory = {}};
    while (!file.atEnd()) {
        const QStringList cells = QString::fromUtf8(file.readLine()).trimmed().split(u'\t');
        const auto time = [&cells](int at) { return Nanoseconds(cells[at].toLongLong()); };
        if (cells[0] == MemoryLine && cells.size() == 4)
            measurement.memory.push_back({cells[1].toInt(), cells[2].toInt(), cells[3].toInt()});
        else if (cells.size() == 7)
            measurement.samples.push_back(
                {cells[0], cells[1].toInt(), cells[2].toInt(), time(3), time(4), time(5), time(6)});
        else
            GiveUp(path + u" holds a line that is no sample"_s);
    }
    return measurement;
}

QString Table(const Measurement& small, const Measurement& large)
{
    QStringList headers;
    for (const Column& column : Columns())
        headers << column.header;
    QString table = Line(headers);
    QStringList actions;
    for (const Sample& sample : small.samples) {
        if (!actions.contains(sample.action))
            actions << sample.action;
    }
    for (const QString& action : std::as_const(actions))
        table += ActionLines(action, small, large);
    return table + u'\n' + MemoryLines(small) + MemoryLines(large);
}
