#pragma once

#include <QString>

#include <exception>

/// A failure whose description is shown to the user as it stands: a statement the server refused, a
/// text that is no number, an integer too large for sixteen bits.
class RunTimeError : public std::exception {
public:
    explicit RunTimeError(QString description)
        : m_description(std::move(description)), m_utf8(m_description.toUtf8())
    {}

    /// The words for the user. Our own carry no quote, so that the error log can store them.
    const QString& Description() const { return m_description; }
    /// What the user should do, shown under the description; empty where the description says all.
    virtual QString Advice() const { return {}; }
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_description;
    QByteArray m_utf8;
};

/// An integer outside -32768..32767 where sixteen bits are required, or a number no column can hold.
class OverflowError : public RunTimeError {
public:
    OverflowError() : RunTimeError(QStringLiteral("溢出")) {}
};

/// A text that should be a number and is none.
class TypeMismatchError : public RunTimeError {
public:
    TypeMismatchError() : RunTimeError(QStringLiteral("类型不匹配")) {}
};

/// A record set was read behind its last row.
class EndOfDataError : public RunTimeError {
public:
    EndOfDataError() : RunTimeError(QStringLiteral("没有当前记录。")) {}
};

/// A column index outside the fields that were asked for.
class OutOfBoundsError : public RunTimeError {
public:
    OutOfBoundsError() : RunTimeError(QStringLiteral("下标越界")) {}
};
