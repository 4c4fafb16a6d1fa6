// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/batch/arguments.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QMap>

#include <algorithm>
#include <string_view>

namespace host {

namespace {

struct ArgumentsText
{
    Q_DECLARE_TR_FUNCTIONS(ArgumentsText)
};

struct OptionText
{
    QStringList names;
    QString value; // the name of its value; empty for a switch
    QString description;
};

QList<OptionText> optionTexts()
{
    const auto names = [](std::initializer_list<const char *> list) {
        QStringList result;
        for (const char *name : list)
            result.append(QLatin1String(name));
        return result;
    };
    return {
        {names({"d", "printer"}), ArgumentsText::tr("NAME"),
         ArgumentsText::tr("Print to this queue or preset (queue/preset).")},
        {names({"n", "copies"}), ArgumentsText::tr("NUMBER"), ArgumentsText::tr("Number of copies.")},
        {names({"P", "pages"}), ArgumentsText::tr("LIST"),
         ArgumentsText::tr("Pages to print, for example 1-3,8.")},
        {names({"t", "title"}), ArgumentsText::tr("TEXT"), ArgumentsText::tr("Title of the job.")},
        {names({"h", "server"}), ArgumentsText::tr("HOST"),
         ArgumentsText::tr("Print server to use, HOST or HOST:PORT.")},
        {names({"s", "set"}), ArgumentsText::tr("KEY=VALUE"),
         ArgumentsText::tr("Set an option of the printer, or a key of a panel such as departmentCode.")},
        {names({"set-file"}), ArgumentsText::tr("KEY=FILE"),
         ArgumentsText::tr(
             "Like --set, with the value from the first line of a file; “-” is the standard input.")},
        {names({"ask"}), ArgumentsText::tr("KEY"),
         ArgumentsText::tr("Like --set, with the value asked for on the terminal, which does not show it.")},
        {names({"o"}), ArgumentsText::tr("NAME=VALUE"),
         ArgumentsText::tr("Like --set, but unknown names are passed to the print system as job options.")},
        {names({"batch"}), {}, ArgumentsText::tr("Print without opening a window.")},
        {names({"output"}), ArgumentsText::tr("FILE"),
         ArgumentsText::tr("With --batch: write the pages into this PDF file instead of printing them.")},
        {names({"resolve"}),
         {},
         ArgumentsText::tr("Accept the proposal when settings cannot be used together.")},
        {names({"allow-no-password"}),
         {},
         ArgumentsText::tr("Print even if a password or a department code is missing.")},
        {names({"summary"}), {}, ArgumentsText::tr("Write the summary of the settings.")},
        {names({"list-options"}),
         {},
         ArgumentsText::tr("Write the options of the printer and their choices.")},
        {names({"presets"}), {}, ArgumentsText::tr("Write the presets of the printer.")},
        {names({"save-preset"}), ArgumentsText::tr("NAME"),
         ArgumentsText::tr("Save the settings as a preset of the printer, without passwords and codes.")},
        {names({"delete-preset"}), ArgumentsText::tr("NAME"),
         ArgumentsText::tr("Delete a preset of the printer.")},
        {names({"json"}), {}, ArgumentsText::tr("Write results and errors as JSON.")},
        {names({"ppd"}), ArgumentsText::tr("FILE"),
         ArgumentsText::tr("Take the options from this PPD file instead of a queue.")},
        {names({"bundle"}), ArgumentsText::tr("FOLDER"),
         ArgumentsText::tr("Load the panels of this bundle instead of the installed ones.")},
        {names({"panel"}), ArgumentsText::tr("NAME"),
         ArgumentsText::tr(
             "Open the dialog at this pane: general, more, job, summary, or a panel's name or kind.")},
        {names({"screenshot"}), ArgumentsText::tr("FILE"),
         ArgumentsText::tr("Save a screenshot of the dialog and exit.")},
        {names({"color-scheme"}), ArgumentsText::tr("NAME"),
         ArgumentsText::tr("Colors of the dialog: light or dark.")},
        {names({"startup-time"}),
         {},
         ArgumentsText::tr("Open the dialog, write the start-up time and exit.")},
        {names({"help"}), {}, ArgumentsText::tr("Show this help.")},
        {names({"version"}), {}, ArgumentsText::tr("Show the version.")},
    };
}

void addOptions(QCommandLineParser *parser)
{
    for (const OptionText &option : optionTexts())
        parser->addOption(QCommandLineOption(option.names, option.description, option.value));
    parser->addPositionalArgument(ArgumentsText::tr("FILE"),
                                  ArgumentsText::tr("Documents to print; “-” is the standard input."),
                                  ArgumentsText::tr("[FILE...]"));
}

bool addAssignment(const QString &name, const QString &word, Arguments *arguments, QString *error)
{
    using Source = Arguments::Assignment::Source;
    if (name == QLatin1String("n") || name == QLatin1String("copies")) {
        arguments->assignments.append({QStringLiteral("copies"), word});
        return true;
    }
    if (name == QLatin1String("P") || name == QLatin1String("pages")) {
        arguments->assignments.append({QStringLiteral("page-ranges"), word});
        return true;
    }
    const qsizetype equals = word.indexOf(QLatin1Char('='));
    if (name == QLatin1String("ask")) {
        if (!word.isEmpty() && equals < 0)
            arguments->assignments.append({word, {}, false, Source::Terminal});
        else
            *error = ArgumentsText::tr("--ask takes a key alone; the value is asked for.");
        return error->isEmpty();
    }
    const bool passOn = name == QLatin1String("o");
    if (equals < 1 && !(passOn && equals < 0 && !word.isEmpty())) {
        *error = passOn ? ArgumentsText::tr("-o takes NAME=VALUE or NAME.")
                        : ArgumentsText::tr("--%1 takes %2; there is no “=” after the key.")
                              .arg(name.size() == 1 ? QStringLiteral("set") : name,
                                   name == QLatin1String("set-file") ? ArgumentsText::tr("KEY=FILE")
                                                                     : ArgumentsText::tr("KEY=VALUE"));
        return false;
    }
    // As in lp, a bare name switches on, and a leading "no" switches off.
    Arguments::Assignment assignment{word.left(equals < 0 ? word.size() : equals),
                                     equals < 0 ? QStringLiteral("true") : word.mid(equals + 1), passOn};
    if (equals < 0 && word.startsWith(QLatin1String("no")) && word.size() > 2) {
        assignment.key = word.mid(2);
        assignment.value = QStringLiteral("false");
    }
    if (name == QLatin1String("set-file"))
        assignment.source = assignment.value == QLatin1String("-") ? Source::Input : Source::File;
    arguments->assignments.append(assignment);
    return true;
}

// Keeps the order of options, so that settings are applied in the given order.
bool readAssignments(const QCommandLineParser &parser, Arguments *arguments, QString *error)
{
    const QStringList wanted = {QStringLiteral("n"),        QStringLiteral("copies"), QStringLiteral("P"),
                                QStringLiteral("pages"),    QStringLiteral("s"),      QStringLiteral("set"),
                                QStringLiteral("set-file"), QStringLiteral("ask"),    QStringLiteral("o")};
    const QMap<QString, QString> sameAs = {{QStringLiteral("copies"), QStringLiteral("n")},
                                           {QStringLiteral("pages"), QStringLiteral("P")},
                                           {QStringLiteral("set"), QStringLiteral("s")}};
    QMap<QString, qsizetype> used;
    for (const QString &name : parser.optionNames()) {
        if (!wanted.contains(name))
            continue;
        const QString word = parser.values(name).value(used[sameAs.value(name, name)]++);
        if (!addAssignment(name, word, arguments, error))
            return false;
    }
    return true;
}

QString problemOf(const Arguments &arguments)
{
    if (!arguments.colorScheme.isEmpty() && arguments.colorScheme != QLatin1String("light") &&
        arguments.colorScheme != QLatin1String("dark"))
        return ArgumentsText::tr("--color-scheme takes light or dark.");
    if (arguments.batch && arguments.output.isEmpty() && arguments.printer.isEmpty() &&
        !arguments.ppdFile.isEmpty())
        return ArgumentsText::tr("--batch needs a printer to print to; --ppd alone names none.");
    const bool readsDocument =
        arguments.files.contains(QLatin1String("-")) || (arguments.batch && arguments.files.isEmpty());
    if (arguments.takesValueFromInput() && readsDocument)
        return ArgumentsText::tr("The standard input cannot be both a value and a document.");
    if (arguments.batch && !arguments.screenshot.isEmpty())
        return ArgumentsText::tr("--batch and --screenshot cannot be used together.");
    if (arguments.allowNoPassword && !arguments.batch)
        return ArgumentsText::tr("--allow-no-password requires --batch.");
    if (!arguments.output.isEmpty() && !arguments.batch)
        return ArgumentsText::tr("--output requires --batch.");
    if (arguments.asksForPresets() && arguments.printer.isEmpty() && !arguments.ppdFile.isEmpty())
        return ArgumentsText::tr("Presets belong to a printer; --ppd alone names none.");
    if (arguments.resolve && arguments.needsWindow())
        return ArgumentsText::tr("--resolve requires --batch, --summary or --save-preset.");
    if (arguments.json && arguments.needsWindow())
        return ArgumentsText::tr(
            "--json requires --batch, --summary, --list-options or an option for presets.");
    return {};
}

// Qt's own message lists unknown letters one by one; those of "-p12345" may be a code.
QString parseProblem(const QCommandLineParser &parser)
{
    const QStringList unknown = parser.unknownOptionNames();
    if (unknown.isEmpty())
        return parser.errorText();
    const QString &name = unknown.first();
    const bool isWord =
        std::all_of(name.begin(), name.end(), [](QChar c) { return c.isLetter() || c == u'-'; });
    if (!isWord)
        return ArgumentsText::tr("Unknown option on the command line; --help lists the options.");
    return ArgumentsText::tr("Unknown option “%1”; --help lists the options.")
        .arg((name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name);
}

bool hasWord(int argc, const char *const *argv, std::initializer_list<std::string_view> words)
{
    for (int i = 1; i < argc && std::string_view(argv[i]) != "--"; ++i) {
        const std::string_view given = argv[i];
        for (const std::string_view word : words) {
            if (given == word ||
                (given.substr(0, word.size()) == word && given.substr(word.size(), 1) == "="))
                return true;
        }
    }
    return false;
}

} // namespace

bool Arguments::takesValueFromInput() const
{
    return std::any_of(assignments.begin(), assignments.end(), [](const Assignment &assignment) {
        return assignment.source == Assignment::Source::Input;
    });
}

std::optional<Arguments> parseArguments(const QStringList &words, QString *error)
{
    QCommandLineParser parser;
    addOptions(&parser);
    if (!parser.parse(words)) {
        *error = parseProblem(parser);
        return std::nullopt;
    }
    const auto isSet = [&](const char *name) { return parser.isSet(QLatin1String(name)); };
    const auto value = [&](const char *name) { return parser.value(QLatin1String(name)); };
    Arguments arguments;
    arguments.help = isSet("help");
    arguments.version = isSet("version");
    arguments.batch = isSet("batch");
    arguments.summary = isSet("summary");
    arguments.listOptions = isSet("list-options");
    arguments.json = isSet("json");
    arguments.resolve = isSet("resolve");
    arguments.allowNoPassword = isSet("allow-no-password");
    arguments.startupTime = isSet("startup-time");
    arguments.presets = isSet("presets");
    if (isSet("save-preset"))
        arguments.savePreset = value("save-preset");
    if (isSet("delete-preset"))
        arguments.deletePreset = value("delete-preset");
    arguments.printer = value("printer");
    arguments.server = value("server");
    arguments.ppdFile = value("ppd");
    arguments.title = value("title");
    arguments.screenshot = value("screenshot");
    arguments.output = value("output");
    arguments.panel = value("panel");
    arguments.colorScheme = value("color-scheme");
    arguments.bundles = parser.values(QStringLiteral("bundle"));
    arguments.files = parser.positionalArguments();
    if (!readAssignments(parser, &arguments, error))
        return std::nullopt;
    *error = problemOf(arguments);
    return error->isEmpty() ? std::optional(arguments) : std::nullopt;
}

QString commandLineHelp()
{
    QString text = ArgumentsText::tr("Usage: kelmar-print [OPTION...] [FILE...]\n"
                                     "Print documents, with a dialog for the settings or without one.\n\n");
    for (const OptionText &option : optionTexts()) {
        QStringList names;
        for (const QString &name : option.names)
            names.append((name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name);
        QString left = QStringLiteral("  ") + names.join(QStringLiteral(", "));
        if (!option.value.isEmpty())
            left += QLatin1Char(' ') + option.value;
        text += left.leftJustified(28) + QLatin1Char(' ') + option.description + QLatin1Char('\n');
    }
    text += ArgumentsText::tr(
        "\nExit codes: 0 success, 1 failure, 2 wrong usage, 3 settings that cannot be used together,\n"
        "4 canceled, 5 not known whether the job was accepted. See the manual page kelmar-print(1) for "
        "details.\n");
    return text;
}

bool runsWithoutWindow(int argc, const char *const *argv)
{
    return hasWord(argc, argv,
                   {"--batch", "--summary", "--list-options", "--presets", "--save-preset", "--delete-preset",
                    "--help", "--version"});
}

} // namespace host
