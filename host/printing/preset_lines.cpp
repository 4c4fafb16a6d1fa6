// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/preset_lines.h"

#include "host/printing/cups_handles.h"
#include "host/printing/destination.h"
#include "host/printing/file_name.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cstring>
#include <cups/file.h>
#include <optional>

#include <fcntl.h>
#include <unistd.h>

namespace host {

namespace {

struct PresetText
{
    Q_DECLARE_TR_FUNCTIONS(PresetText)
};

constexpr qsizetype longestLine = 8191; // maximum length that libcups reads, without the line end

bool isSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

// One line of the file; `keyword` is empty if it has no destination.
struct Line
{
    QByteArray keyword; // "Dest" or "Default", in the original spelling
    QByteArray destination;
    QByteArray options; // unparsed
    QByteArray raw;     // including the line end
};

// Whether the reader of lines in libcups unescapes a backslash, as from 2.4.17 on, before the options are
// parsed. Before that, it leaves it to the options, which unescape it once more.
bool linesHaveEscapes()
{
    static const bool result = [] {
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) != 0)
            return false;
        char line[16] = "a \\\\\n";
        const bool isWritten = write(ends[1], line, strlen(line)) > 0;
        close(ends[1]);
        cups_file_t *file = cupsFileOpenFd(ends[0], "r"); // takes the descriptor
        char *value = nullptr;
        int number = 0;
        const bool isRead = isWritten && file && cupsFileGetConf(file, line, sizeof line, &value, &number);
        const bool isSingle = isRead && value && qstrcmp(value, "\\") == 0;
        if (file)
            cupsFileClose(file);
        else
            close(ends[0]);
        return isSingle;
    }();
    return result;
}

QByteArray withEscapesRead(const QByteArray &text)
{
    QByteArray result;
    for (qsizetype i = 0; i < text.size() && text.at(i) != '#'; ++i) {
        const QByteArray pair = text.mid(i, 2);
        const bool isEscape = pair == "\\\\" || pair == "\\#" || pair == "\\n" || pair == "\\r";
        i += isEscape;
        const char c = text.at(i);
        result += !isEscape ? c : c == 'n' ? '\n' : c == 'r' ? '\r' : c;
    }
    return result.trimmed();
}

// Removes comments like libcups: "\#" is the character, "#" alone starts a comment. Older versions do not
// interpret other escapes in the line.
QByteArray withoutComment(QByteArray text)
{
    if (linesHaveEscapes())
        return withEscapesRead(text);
    const qsizetype mark = text.indexOf('#');
    if (mark > 0 && text.at(mark - 1) == '\\')
        text.remove(mark - 1, 1);
    else if (mark >= 0)
        text.truncate(mark);
    return text.trimmed();
}

QByteArray takeWord(QByteArray *text)
{
    const auto end = std::find_if(text->cbegin(), text->cend(), isSpace);
    const QByteArray word = text->first(end - text->cbegin());
    *text = text->sliced(word.size()).trimmed();
    return word;
}

Line lineFrom(const QByteArray &raw)
{
    Line line;
    line.raw = raw;
    QByteArray text = withoutComment(raw);
    const QByteArray keyword = takeWord(&text);
    if (keyword.compare("dest", Qt::CaseInsensitive) != 0 &&
        keyword.compare("default", Qt::CaseInsensitive) != 0)
        return line;
    line.keyword = keyword;
    line.destination = takeWord(&text);
    line.options = text;
    return line;
}

QList<Line> linesOf(const QByteArray &content)
{
    QList<Line> lines;
    for (qsizetype begin = 0; begin < content.size();) {
        const qsizetype end = content.indexOf('\n', begin);
        const qsizetype next = end < 0 ? content.size() : end + 1;
        lines.append(lineFrom(content.sliced(begin, next - begin)));
        begin = next;
    }
    return lines;
}

QByteArray destinationName(const QString &queue, const QString &name)
{
    return fileNameToBytes(name.isEmpty() ? queue : queue + QLatin1Char('/') + name);
}

// Whether a line belongs to this destination. Ignores case, as libcups does.
bool isOf(const Line &line, const QByteArray &destination)
{
    return !line.keyword.isEmpty() && line.destination.compare(destination, Qt::CaseInsensitive) == 0;
}

void readOptions(const QByteArray &text, QMap<QString, QString> *options)
{
    const CupsOptionList list(text.constData());
    for (int i = 0; i < list.count(); ++i)
        options->insert(QString::fromUtf8(list.options()[i].name),
                        QString::fromUtf8(list.options()[i].value));
}

// "\#" is always read as the character, either by the reader of lines or by that of options.
QByteArray quoted(const QString &value)
{
    QByteArray text;
    bool isPlain = !value.isEmpty();
    for (const char c : value.toUtf8()) {
        if (c == '\\' && linesHaveEscapes())
            text += "\\\\"; // once for the line, and below for the options
        if (c == '"' || c == '\'' || c == '\\' || c == '#')
            text += '\\';
        text += c;
        isPlain &= isalnum(static_cast<unsigned char>(c)) || strchr("-_.,:;/@+%*=", c) ||
                   static_cast<unsigned char>(c) >= 0x80;
    }
    return isPlain ? text : '"' + text + '"';
}

// The options that libcups reads from a line, for comparison.
std::optional<QMap<QString, QString>> readBack(const QByteArray &line)
{
    if (line.contains('\n') || line.size() > longestLine)
        return std::nullopt;
    QMap<QString, QString> options;
    readOptions(lineFrom(line).options, &options);
    return options;
}

PrintError unwritable(const QString &option)
{
    return {PrintError::Kind::BadValue,
            PresetText::tr("A preset cannot store the value of “%1”: it contains a tab, a line break or "
                           "another character that cannot be written to the preset file.")
                .arg(option)};
}

std::optional<QByteArray> optionText(const QMap<QString, QString> &options, PrintError *error)
{
    QByteArray text;
    for (auto it = options.begin(); it != options.end(); ++it) {
        const QByteArray one = ' ' + it.key().toUtf8() + '=' + quoted(it.value());
        const bool hasControl = std::any_of(it.value().begin(), it.value().end(),
                                            [](QChar c) { return c.category() == QChar::Other_Control; });
        if (hasControl || readBack("Dest x" + one) != QMap<QString, QString>{{it.key(), it.value()}}) {
            *error = unwritable(it.key());
            return std::nullopt;
        }
        text += one;
    }
    return text;
}

} // namespace

QList<Preset> presetsIn(const QByteArray &content, const QString &queue)
{
    QList<Preset> presets;
    const QByteArray own = fileNameToBytes(queue);
    for (const Line &line : linesOf(content)) {
        const qsizetype slash = line.destination.indexOf('/');
        const QByteArray lineQueue = slash < 0 ? line.destination : line.destination.first(slash);
        if (line.keyword.isEmpty() || lineQueue.compare(own, Qt::CaseInsensitive) != 0)
            continue;
        const QString name = slash < 0 ? QString() : fileNameFromBytes(line.destination.sliced(slash + 1));
        auto known = std::find_if(presets.begin(), presets.end(),
                                  [&](const Preset &preset) { return isSamePreset(preset.name, name); });
        if (known == presets.end())
            known = presets.insert(presets.end(), {name, {}});
        readOptions(line.options, &known->options);
    }
    return presets;
}

QMap<QString, QStringList> presetNamesIn(const QByteArray &content)
{
    QMap<QString, QStringList> names;
    for (const Line &line : linesOf(content)) {
        const auto destination = splitDestinationName(fileNameFromBytes(line.destination));
        const QString &name = destination.second;
        QStringList &known = names[destination.first.toLower()];
        const bool isNew = std::none_of(known.begin(), known.end(),
                                        [&name](const QString &other) { return isSamePreset(name, other); });
        if (!name.isEmpty() && isNew)
            known.append(name);
    }
    return names;
}

std::optional<QByteArray> withPreset(const QByteArray &content, const QString &queue, const Preset &preset,
                                     PrintError *error)
{
    const auto options = optionText(preset.options, error);
    if (!options)
        return std::nullopt;
    const QByteArray destination = destinationName(queue, preset.name);
    QByteArray result, keyword = "Dest";
    qsizetype place = -1;
    for (const Line &line : linesOf(content)) {
        if (!isOf(line, destination)) {
            result += line.raw;
            continue;
        }
        if (place < 0)
            place = result.size();
        if (line.keyword.compare("default", Qt::CaseInsensitive) == 0)
            keyword = line.keyword;
    }
    QByteArray line = keyword + ' ' + destination + *options;
    if (readBack(line) != preset.options) {
        *error = {PrintError::Kind::BadValue,
                  PresetText::tr("A preset cannot store this many settings; the limit is %1 bytes.")
                      .arg(longestLine)};
        return std::nullopt;
    }
    line += '\n';
    if (place < 0 && !result.isEmpty() && !result.endsWith('\n'))
        result += '\n';
    return result.insert(place < 0 ? result.size() : place, line);
}

QByteArray renamedPreset(const QByteArray &content, const QString &queue, const QString &from,
                         const QString &to)
{
    const QByteArray earlier = destinationName(queue, from);
    QByteArray result;
    for (const Line &line : linesOf(content)) {
        if (!isOf(line, earlier)) {
            result += line.raw;
            continue;
        }
        QByteArray renamed = line.raw;
        renamed.replace(
            renamed.indexOf(line.destination, renamed.indexOf(line.keyword) + line.keyword.size()),
            line.destination.size(), destinationName(queue, to));
        result += renamed;
    }
    return result;
}

QByteArray withoutPreset(const QByteArray &content, const QString &queue, const QString &name)
{
    const QByteArray destination = destinationName(queue, name);
    QByteArray result;
    for (const Line &line : linesOf(content)) {
        if (!isOf(line, destination))
            result += line.raw;
        else if (line.keyword.compare("default", Qt::CaseInsensitive) == 0)
            result += line.keyword + ' ' + fileNameToBytes(queue) + '\n';
    }
    return result;
}

} // namespace host
