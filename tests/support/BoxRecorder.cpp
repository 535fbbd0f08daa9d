#include "tests/support/BoxRecorder.h"

#include "core/common/Handlers.h"

#include <gtest/gtest.h>

#include <utility>

void BoxRecorder::Expect(const QString& text, const QString& title)
{
    m_expected.append({title, text, Kind::Information, false, false});
}

void BoxRecorder::ExpectQuestion(const QString& text, bool answer, const QString& title)
{
    m_expected.append({title, text, Kind::Question, answer, false});
}

void BoxRecorder::ExpectDestroying(const QString& text, bool answer, const QString& title)
{
    m_expected.append({title, text, Kind::Destroying, answer, false});
}

void BoxRecorder::ExpectContaining(const QString& part)
{
    m_expected.append({SystemTitle, part, Kind::Information, false, true});
}

void BoxRecorder::ExpectFile(const QString& filter, const QString& chosen)
{
    m_expectedFiles.append({filter, chosen});
}

void BoxRecorder::Verify()
{
    for (const Expected& expected : std::as_const(m_expected))
        ADD_FAILURE() << "a box never came: " << qPrintable(expected.text);
    m_expected.clear();
    for (const ExpectedFile& expected : std::as_const(m_expectedFiles))
        ADD_FAILURE() << "a file dialog never came: " << qPrintable(expected.filter);
    m_expectedFiles.clear();
}

void BoxRecorder::Inform(const QString& title, const QString& text)
{
    Meet(title, text, Kind::Information);
}

bool BoxRecorder::Ask(const QString& title, const QString& text)
{
    return Meet(title, text, Kind::Question);
}

bool BoxRecorder::AskBeforeDestroying(const QString& title, const QString& text)
{
    return Meet(title, text, Kind::Destroying);
}

QString BoxRecorder::ChooseFile(const FileQuestion& question)
{
    const NestedLoop nested;
    m_lastFileQuestion = question;
    if (m_expectedFiles.isEmpty()) {
        ADD_FAILURE() << "a file dialog nobody expected: " << qPrintable(question.title);
        return {};
    }
    const ExpectedFile expected = m_expectedFiles.takeFirst();
    EXPECT_EQ(qPrintable(question.filter), std::string(qPrintable(expected.filter)));
    return expected.chosen;
}

bool BoxRecorder::Meet(const QString& title, const QString& text, Kind kind)
{
    const NestedLoop nested;
    m_seen << text;
    const bool isExpected = !m_expected.isEmpty();
    const Expected expected = isExpected ? m_expected.takeFirst() : Expected();
    if (const auto action = std::exchange(m_whileOpen, nullptr))
        action();
    if (!isExpected) {
        ADD_FAILURE() << "a box nobody expected: " << qPrintable(text);
        return false;
    }
    if (expected.isPart)
        EXPECT_TRUE(text.contains(expected.text)) << qPrintable(text);
    else
        EXPECT_EQ(qPrintable(text), std::string(qPrintable(expected.text)));
    EXPECT_EQ(qPrintable(title), std::string(qPrintable(expected.title)));
    EXPECT_EQ(static_cast<int>(kind), static_cast<int>(expected.kind)) << qPrintable(text);
    return expected.answer;
}
