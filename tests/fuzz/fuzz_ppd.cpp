// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// A PPD, with document, constraint engines and custom values. After a NUL byte, lines "option=choice" are
// marked.

#include "constraints/ppd_lines.h"
#include "host/printing/ppd_document.h"
#include "tests/fuzz/fuzz_support.h"

namespace {

// more marks in a few kilobytes of input are slow and cover no further code
constexpr qsizetype mostMarks = 200;

void lookAt(host::PpdDocument *document, const QString &keyword, qsizetype *marks)
{
    const auto option = document->option(keyword);
    requireThat(option && document->hasOption(keyword));
    document->defaultChoice(keyword);
    document->isInstallable(keyword);
    document->forbiddenChoices(keyword);
    for (const auto &choice : option->choices) {
        document->paperSize(choice.keyword);
        document->described(keyword, choice.keyword).text();
        if (++*marks > mostMarks)
            continue;
        requireThat(document->mark(keyword, choice.keyword));
        document->conflicts();
    }
    if (option->custom) {
        const QString current = option->custom->current();
        option->custom->shown(current);
        option->custom->inWords();
        document->mark(keyword, current);
    }
}

void markLines(host::PpdDocument *document, const QByteArray &lines)
{
    QMap<QString, QString> options;
    for (const QByteArray &line : lines.split('\n')) {
        const qsizetype equals = line.indexOf('=');
        const QString name = QString::fromUtf8(line.left(equals));
        const QString value = equals < 0 ? QString() : QString::fromUtf8(line.mid(equals + 1));
        options.insert(name, value);
        document->standardChoices(name, value);
        const auto option = document->option(name);
        const bool isTaken = document->mark(name, value);
        requireThat(!isTaken || (option && option->hasChoice(value)));
        if (option && option->custom) {
            QString problem;
            const auto values = option->custom->read(value, option->text, &problem);
            requireThat(values || !problem.isEmpty());
            if (values)
                requireThat(option->custom->read(option->custom->written(*values), option->text, &problem));
        }
    }
    document->markOptions(options);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray input = bytesOf(data, size);
    const qsizetype end = input.indexOf('\0');
    host::PrintError error;
    const auto document = host::PpdDocument::ofQueue(QStringLiteral("queue"), input.left(end), &error);
    if (!document) {
        requireThat(!error.message.isEmpty());
        return 0;
    }
    qsizetype marks = 0;
    for (const QString &keyword : document->optionKeywords())
        lookAt(document.get(), keyword, &marks);
    if (end >= 0)
        markLines(document.get(), input.mid(end + 1));
    document->conflicts();
    document->resolution();
    document->changedChoices();
    constraints::linesAsWritten(document->record(), [](std::string_view name) { return !name.empty(); });
    return 0;
}
