// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/batch/value_sources.h"

#include "host/batch/terminal_input.h"
#include "host/batch/terminal_text.h"
#include "platform/unique_fd.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringDecoder>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace host {

namespace {

struct ValueSourceText
{
    Q_DECLARE_TR_FUNCTIONS(ValueSourceText)
};

QString unreadable(const QString &key, const QString &why)
{
    return ValueSourceText::tr("The value of %1 cannot be read: %2.").arg(key, why);
}

std::optional<QString> readLine(int descriptor, const QString &key, QString *error)
{
    auto [outcome, line] = readInputLine(descriptor);
    switch (outcome) {
    case InputLine::Outcome::Failed:
        *error = unreadable(key, qt_error_string(errno));
        return std::nullopt;
    case InputLine::Outcome::TooLong:
        *error = unreadable(
            key, ValueSourceText::tr("its first line is longer than %1 bytes").arg(InputLine::longest));
        return std::nullopt;
    case InputLine::Outcome::None:
        *error = unreadable(key, ValueSourceText::tr("there is none"));
        return std::nullopt;
    case InputLine::Outcome::Whole:
        break;
    }
    if (line.endsWith('\r'))
        line.chop(1);
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(line);
    if (utf8.hasError() || line.contains('\0')) {
        *error = unreadable(key, ValueSourceText::tr("it is not text"));
        return std::nullopt;
    }
    return text;
}

std::optional<QString> readFile(const QString &path, const QString &key, QString *error)
{
    const platform::UniqueFd file(open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
    if (!file) {
        *error = unreadable(key, qt_error_string(errno)); // the path may be a value given by mistake
        return std::nullopt;
    }
    return readLine(file.get(), key, error);
}

std::optional<QString> ask(const QString &key, QString *error)
{
    const platform::UniqueFd terminal(open("/dev/tty", O_RDWR | O_CLOEXEC));
    const EchoDisabler disabler(terminal.get());
    if (!disabler.isActive()) {
        *error =
            unreadable(key, ValueSourceText::tr("there is no terminal to ask on; --set-file takes it from a "
                                                "file or, as %1=-, from the standard input")
                                .arg(key));
        return std::nullopt;
    }
    const auto write = [&](const QByteArray &text) {
        return ::write(terminal.get(), text.constData(), static_cast<size_t>(text.size())) >= 0;
    };
    QByteArray prompt = terminalLine(ValueSourceText::tr("%1: ", "prompt for a value").arg(key));
    prompt.chop(1);
    (void)write(prompt);
    const auto value = readLine(terminal.get(), key, error);
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
