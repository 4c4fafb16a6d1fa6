// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/batch/value_sources.h"

#include "host/batch/terminal_text.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringDecoder>

#include <cerrno>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace host {

namespace {

struct ValueSourceText
{
    Q_DECLARE_TR_FUNCTIONS(ValueSourceText)
};

constexpr qsizetype mostBytes = 4096;
constexpr char interruptKey = 3; // Ctrl+C, which arrives as a character while signals are off

class FileDescriptor
{
public:
    explicit FileDescriptor(int number) : m_number(number) {}
    ~FileDescriptor()
    {
        if (m_number >= 0)
            close(m_number);
    }
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;
    int number() const { return m_number; }

private:
    int m_number;
};

// A terminal that shows nothing of what is typed, and cannot be left like that by a signal.
class Silence
{
public:
    explicit Silence(int terminal) : m_terminal(terminal)
    {
        m_active = tcgetattr(terminal, &m_before) == 0;
        termios silent = m_before;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO | ISIG);
        m_active = m_active && tcsetattr(terminal, TCSAFLUSH, &silent) == 0;
    }
    ~Silence()
    {
        if (m_active)
            tcsetattr(m_terminal, TCSAFLUSH, &m_before);
    }
    Silence(const Silence &) = delete;
    Silence &operator=(const Silence &) = delete;
    bool isActive() const { return m_active; }

private:
    int m_terminal;
    bool m_active = false;
    termios m_before = {};
};

QString unreadable(const QString &key, const QString &why)
{
    return ValueSourceText::tr("The value of %1 cannot be read: %2.").arg(key, why);
}

// By single bytes: what follows the line is somebody else's.
std::optional<QString> readLine(int descriptor, const QString &key, QString *error)
{
    QByteArray line;
    char byte = 0;
    ssize_t count = 0;
    while ((count = read(descriptor, &byte, 1)) != 0 && byte != '\n' && byte != interruptKey) {
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0) {
            *error = unreadable(key, qt_error_string(errno));
            return std::nullopt;
        }
        line.append(byte);
        if (line.size() > mostBytes) {
            *error =
                unreadable(key, ValueSourceText::tr("its first line is longer than %1 bytes").arg(mostBytes));
            return std::nullopt;
        }
    }
    if (byte == interruptKey || (count == 0 && line.isEmpty())) {
        *error = unreadable(key, ValueSourceText::tr("there is none"));
        return std::nullopt;
    }
    if (line.endsWith('\r'))
        line.chop(1);
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(line);
    if (utf8.hasError() || line.contains('\0')) {
        *error = unreadable(key, ValueSourceText::tr("it is no text"));
        return std::nullopt;
    }
    return text;
}

std::optional<QString> readFile(const QString &path, const QString &key, QString *error)
{
    const FileDescriptor file(open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
    if (file.number() < 0) {
        *error = unreadable(key, qt_error_string(errno)); // the path may be the value, given by mistake
        return std::nullopt;
    }
    return readLine(file.number(), key, error);
}

std::optional<QString> ask(const QString &key, QString *error)
{
    const FileDescriptor terminal(open("/dev/tty", O_RDWR | O_CLOEXEC));
    const Silence silence(terminal.number());
    if (!silence.isActive()) {
        *error =
            unreadable(key, ValueSourceText::tr("there is no terminal to ask on; --set-file takes it from a "
                                                "file or, as %1=-, from the standard input")
                                .arg(key));
        return std::nullopt;
    }
    const auto write = [&](const QByteArray &text) {
        return ::write(terminal.number(), text.constData(), static_cast<size_t>(text.size())) >= 0;
    };
    QByteArray prompt = terminalLine(ValueSourceText::tr("%1: ", "prompt for a value").arg(key));
    prompt.chop(1);
    (void)write(prompt);
    const auto value = readLine(terminal.number(), key, error);
    (void)write("\n");
    return value;
}

} // namespace

bool fetchValues(Arguments *arguments, QString *error)
{
    using Source = Arguments::Assignment::Source;
    for (Arguments::Assignment &assignment : arguments->assignments) {
        std::optional<QString> value = assignment.value;
        if (assignment.source == Source::File)
            value = readFile(assignment.value, assignment.key, error);
        else if (assignment.source == Source::Input)
            value = readLine(STDIN_FILENO, assignment.key, error);
        else if (assignment.source == Source::Terminal)
            value = ask(assignment.key, error);
        if (!value)
            return false;
        assignment.value = *value;
    }
    return true;
}

} // namespace host
