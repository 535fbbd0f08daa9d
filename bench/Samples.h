#pragma once

#include <QString>
#include <QTextStream>

#include <chrono>
#include <map>
#include <vector>

using Nanoseconds = std::chrono::nanoseconds;

/// One action of the program beside the bare replay of the statements it sent.
struct Sample {
    QString action;
    int statements = 0;
    int writes = 0;        ///< how many of them change rows, each a commit of its own
    Nanoseconds program{}; ///< until the program is ready for the next key
    Nanoseconds painted{}; ///< until what changed also stands on the screen
    Nanoseconds replay{};
    Nanoseconds replayWrites{}; ///< the share of the writes in `replay`
};

/// The two actions that are held against their replay.
extern const QString KeystrokeAction;
extern const QString SaveAction;
/// Printing, without a queue: until the PDF file is written.
extern const QString TicketDocument;
extern const QString SettlementDocument;

/// Resident memory of the program, kilobytes.
struct Memory {
    int frame = 0; ///< main window alone
    int till = 0;  ///< main window and till, one ticket entered
    int atEnd = 0; ///< after all the saves and lists
};

/// What one database of so many tickets gave, in all rounds.
struct Measurement {
    int tickets = 0;
    std::vector<Sample> samples;
    std::vector<Memory> memory;
};

// A file of samples: a line each, fields between tabs. Rounds are appended to each other.
void Write(QTextStream& file, const Sample& sample);
void Write(QTextStream& file, const Memory& memory);
/// Ends the process with a message when the file cannot be read.
Measurement ReadMeasurement(int tickets, const QString& path);

/// The table of medians, ratios and goals.
QString Table(const Measurement& small, const Measurement& large);
