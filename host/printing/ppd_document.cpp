// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/ppd_document.h"

#include "host/printing/cups_handles.h"
#include "host/printing/message_language.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cups/ppd.h>

#include <algorithm>
#include <functional>

// The one place where the host meets the PPD interface that libcups means to drop one day.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace host {

namespace {

struct PpdDocumentText
{
    Q_DECLARE_TR_FUNCTIONS(PpdDocumentText)
};

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

// Options of a group and its subgroups, in order.
void forEachOption(ppd_group_t *groups, int count,
                   const std::function<void(const ppd_group_t &, ppd_option_t &)> &visit)
{
    for (int g = 0; g < count; ++g) {
        for (int o = 0; o < groups[g].num_options; ++o)
            visit(groups[g], groups[g].options[o]);
        forEachOption(groups[g].subgroups, groups[g].num_subgroups, visit);
    }
}

bool isOffChoice(const QString &choice)
{
    return choice.compare(QLatin1String("None"), Qt::CaseInsensitive) == 0 ||
           choice.compare(QLatin1String("Off"), Qt::CaseInsensitive) == 0 ||
           choice.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0;
}

const ppd_choice_t *marked(ppd_file_t *ppd, const QString &keyword)
{
    return ppdFindMarkedChoice(ppd, keyword.toUtf8().constData());
}

// "*Duplex DuplexNoTumble *MediaType Thick" as pairs; a bare option has an empty choice.
QList<std::pair<QString, QString>> constraintTerms(const QString &value)
{
    QList<std::pair<QString, QString>> terms;
    for (const QString &word : value.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (word.startsWith(QLatin1Char('*')))
            terms.append({word.mid(1), QString()});
        else if (!terms.isEmpty())
            terms.last().second = word;
    }
    return terms;
}

// The order in which a dialog should mark choices again: the page size last wins over what regions did to it.
bool isShadowOfPageSize(const char *keyword)
{
    return qstrcmp(keyword, "PageRegion") == 0;
}

// The options that libcups marks for a standard job option. Color mode and quality are left to the print
// system: a choice of the user here must not be overruled by them.
QStringList optionsOfStandardName(const QString &name)
{
    static const QMap<QString, QString> keywords = {
        {QStringLiteral("media"), QStringLiteral("PageSize InputSlot MediaType")},
        {QStringLiteral("sides"),
         QStringLiteral("Duplex JCLDuplex EFDuplex EFDuplexing ARDuplex KD03Duplex")},
        {QStringLiteral("output-bin"), QStringLiteral("OutputBin")},
        {QStringLiteral("printer-resolution"), QStringLiteral("Resolution SetResolution JCLResolution")},
        {QStringLiteral("resolution"), QStringLiteral("Resolution SetResolution JCLResolution")}};
    return keywords.value(name).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

QString OptionChoice::text() const
{
    return PpdDocumentText::tr("%1: %2", "option and its choice").arg(optionText, choiceText);
}

bool PpdOption::hasChoice(const QString &choice) const
{
    return std::any_of(choices.begin(), choices.end(), [&](const Choice &c) { return c.keyword == choice; });
}

std::unique_ptr<PpdDocument> PpdDocument::open(const QString &path, PrintError *error)
{
    return openNamed(path, PpdDocumentText::tr("The PPD file “%1”").arg(path), error);
}

std::unique_ptr<PpdDocument> PpdDocument::openNamed(const QString &path, const QString &name,
                                                    PrintError *error)
{
    const QFileInfo info(path);
    if (!info.isFile()) {
        *error = {PrintError::Kind::FileMissing, PpdDocumentText::tr("There is no PPD file “%1”.").arg(path)};
        return nullptr;
    }
    if (!info.isReadable()) {
        *error = {PrintError::Kind::NoPermission,
                  PpdDocumentText::tr("You are not allowed to read the PPD file “%1”.").arg(path)};
        return nullptr;
    }
    const MessageLanguage language;
    ppd_file_t *ppd = ppdOpenFile(QFile::encodeName(path).constData());
    if (!ppd) {
        int line = 0;
        const QString what = text(ppdErrorString(ppdLastError(&line)));
        *error = {PrintError::Kind::BrokenPpd,
                  PpdDocumentText::tr("%1 is broken: line %2: %3.").arg(name).arg(line).arg(what)};
        return nullptr;
    }
    ppdLocalize(ppd);
    ppdMarkDefaults(ppd);
    return std::unique_ptr<PpdDocument>(new PpdDocument(ppd));
}

std::unique_ptr<PpdDocument> PpdDocument::ofQueue(const QString &queue, PrintError *error)
{
    char path[1024] = "";
    time_t modified = 0;
    const http_status_t status =
        cupsGetPPD3(CUPS_HTTP_DEFAULT, queue.toUtf8().constData(), &modified, path, sizeof path);
    if (status == HTTP_STATUS_NOT_FOUND)
        return nullptr;
    if (status != HTTP_STATUS_OK) {
        *error = lastCupsError(queue);
        return nullptr;
    }
    auto document =
        openNamed(QFile::decodeName(path), PpdDocumentText::tr("The PPD of “%1”").arg(queue), error);
    QFile::remove(QFile::decodeName(path)); // a copy or a link in the folder for temporary files
    if (!document)
        error->message.replace(QFile::decodeName(path), queue); // where the copy cannot be read
    return document;
}

PpdDocument::~PpdDocument()
{
    ppdClose(m_ppd);
}

QString PpdDocument::modelName() const
{
    return text(m_ppd->modelname);
}

QStringList PpdDocument::optionKeywords() const
{
    QStringList keywords;
    forEachOption(m_ppd->groups, m_ppd->num_groups, [&](const ppd_group_t &, ppd_option_t &option) {
        if (!isShadowOfPageSize(option.keyword))
            keywords.append(text(option.keyword));
    });
    return keywords;
}

bool PpdDocument::hasOption(const QString &keyword) const
{
    return ppdFindOption(m_ppd, keyword.toUtf8().constData()) != nullptr;
}

std::optional<PpdOption> PpdDocument::option(const QString &keyword) const
{
    const ppd_option_t *record = ppdFindOption(m_ppd, keyword.toUtf8().constData());
    if (!record)
        return std::nullopt;
    PpdOption option;
    option.keyword = text(record->keyword);
    option.text = record->text[0] ? text(record->text) : option.keyword;
    option.defaultChoice = text(record->defchoice);
    option.markedChoice = markedChoice(option.keyword);
    for (int i = 0; i < record->num_choices; ++i) {
        const ppd_choice_t &choice = record->choices[i];
        if (qstrcmp(choice.choice, "Custom") != 0)
            option.choices.append({text(choice.choice), text(choice.text[0] ? choice.text : choice.choice)});
    }
    forEachOption(m_ppd->groups, m_ppd->num_groups, [&](const ppd_group_t &group, const ppd_option_t &other) {
        if (&other == record)
            option.groupText = text(group.text);
    });
    return option;
}

QString PpdDocument::markedChoice(const QString &keyword) const
{
    const ppd_choice_t *choice = marked(m_ppd, keyword);
    return choice ? text(choice->choice) : QString();
}

QString PpdDocument::defaultChoice(const QString &keyword) const
{
    const ppd_option_t *option = ppdFindOption(m_ppd, keyword.toUtf8().constData());
    return option ? text(option->defchoice) : QString();
}

OptionChoice PpdDocument::described(const QString &keyword, const QString &choice) const
{
    OptionChoice result{keyword, choice, keyword, choice};
    ppd_option_t *option = ppdFindOption(m_ppd, keyword.toUtf8().constData());
    if (!option)
        return result;
    if (option->text[0])
        result.optionText = text(option->text);
    const ppd_choice_t *record = ppdFindChoice(option, choice.toUtf8().constData());
    if (record && record->text[0])
        result.choiceText = text(record->text);
    return result;
}

bool PpdDocument::mark(const QString &keyword, const QString &choice)
{
    ppd_option_t *option = ppdFindOption(m_ppd, keyword.toUtf8().constData());
    if (!option || !ppdFindChoice(option, choice.toUtf8().constData()))
        return false;
    ppdMarkOption(m_ppd, option->keyword, choice.toUtf8().constData());
    return true;
}

void PpdDocument::markOptions(const QMap<QString, QString> &options)
{
    CupsOptionList list;
    for (auto it = options.begin(); it != options.end(); ++it) {
        if (takesOption(it.key()))
            list.add(it.key().toUtf8().constData(), it.value().toUtf8().constData());
    }
    cupsMarkOptions(m_ppd, list.count(), list.options());
}

std::optional<PaperSize> PpdDocument::paperSize(const QString &choice) const
{
    constexpr double millimetres = 25.4 / 72; // a point
    const ppd_size_t *size = ppdPageSize(m_ppd, choice.toUtf8().constData());
    if (!size)
        return std::nullopt;
    const auto mm = [](float points) { return static_cast<double>(points) * millimetres; };
    return PaperSize{mm(size->width),
                     mm(size->length),
                     mm(size->left),
                     mm(size->width - size->right),
                     mm(size->length - size->top),
                     mm(size->bottom)};
}

bool PpdDocument::takesOption(const QString &name) const
{
    const QStringList standsFor = optionsOfStandardName(name);
    return hasOption(name) || std::any_of(standsFor.begin(), standsFor.end(),
                                          [this](const QString &keyword) { return hasOption(keyword); });
}

QMap<QString, QString> PpdDocument::standardChoices(const QString &name, const QString &value)
{
    const bool isList = name == QLatin1String("media");
    QMap<QString, QString> result;
    for (const QString &part : isList ? value.split(QLatin1Char(',')) : QStringList(value)) {
        const QMap<QString, QString> choices = choicesMarkedBy(name, part.trimmed());
        if (choices.isEmpty())
            return {};
        result.insert(choices);
    }
    return result;
}

// libcups does not tell what it marks for a name. So each option that it may mark is set to another choice
// first; what has moved from there was meant.
QMap<QString, QString> PpdDocument::choicesMarkedBy(const QString &name, const QString &value)
{
    QMap<QString, QString> before, decoys, result;
    for (const QString &keyword : optionsOfStandardName(name)) {
        const auto subject = option(keyword);
        if (!subject || subject->markedChoice.isEmpty())
            continue;
        before.insert(keyword, subject->markedChoice);
        for (const PpdOption::Choice &choice : subject->choices) {
            if (choice.keyword != subject->markedChoice && mark(keyword, choice.keyword)) {
                decoys.insert(keyword, choice.keyword);
                break;
            }
        }
    }
    const auto markedByValue = [&] {
        CupsOptionList list;
        list.add(name.toUtf8().constData(), value.toUtf8().constData());
        cupsMarkOptions(m_ppd, list.count(), list.options());
        for (auto it = before.begin(); it != before.end(); ++it) {
            const QString now = markedChoice(it.key());
            if (now != decoys.value(it.key(), it.value()))
                result.insert(it.key(), now);
        }
    };
    markedByValue();
    // A value may be the decoy itself; from where things stood it is a change.
    for (auto it = before.begin(); it != before.end(); ++it)
        mark(it.key(), it.value());
    decoys.clear();
    markedByValue();
    for (auto it = before.begin(); it != before.end(); ++it)
        mark(it.key(), it.value());
    return result;
}

bool PpdDocument::isInstallable(const QString &keyword) const
{
    const ppd_option_t *option = ppdFindOption(m_ppd, keyword.toUtf8().constData());
    return option && isInstallableOption(option);
}

bool PpdDocument::isInstallableOption(const ppd_option_s *option) const
{
    bool found = false;
    forEachOption(m_ppd->groups, m_ppd->num_groups, [&](const ppd_group_t &group, const ppd_option_t &other) {
        if (&other == option)
            found = qstrcmp(group.name, "InstallableOptions") == 0;
    });
    return found;
}

QList<OptionChoice> PpdDocument::changedChoices() const
{
    QList<OptionChoice> changed;
    for (const QString &keyword : optionKeywords()) {
        const ppd_option_t *option = ppdFindOption(m_ppd, keyword.toUtf8().constData());
        const QString choice = markedChoice(keyword);
        if (!choice.isEmpty() && choice != text(option->defchoice) && !isInstallableOption(option))
            changed.append(described(keyword, choice));
    }
    return changed;
}

const QList<PpdDocument::Constraint> &PpdDocument::constraints() const
{
    if (!m_constraints)
        m_constraints = readConstraints();
    return *m_constraints;
}

QList<PpdDocument::Constraint> PpdDocument::readConstraints() const
{
    QList<Constraint> result;
    // libcups takes the longer form alone where a PPD has it.
    ppd_attr_t *attribute = ppdFindAttr(m_ppd, "cupsUIConstraints", nullptr);
    for (; attribute; attribute = ppdFindNextAttr(m_ppd, "cupsUIConstraints", nullptr)) {
        const Constraint terms = constraintTerms(text(attribute->value));
        if (terms.size() >= 2)
            result.append(terms);
    }
    if (!result.isEmpty())
        return result;
    for (int i = 0; i < m_ppd->num_consts; ++i) {
        const ppd_const_t &record = m_ppd->consts[i];
        result.append(
            {{text(record.option1), text(record.choice1)}, {text(record.option2), text(record.choice2)}});
    }
    return result;
}

// Whether a term of a constraint holds among the marks.
bool PpdDocument::isMet(const QString &keyword, const QString &choice) const
{
    const ppd_choice_t *now = marked(m_ppd, keyword);
    if (!now)
        return false;
    return choice.isEmpty() ? !isOffChoice(text(now->choice)) : choice == text(now->choice);
}

std::optional<Conflict> PpdDocument::activeConflict(const Constraint &constraint) const
{
    Conflict conflict;
    for (const auto &[keyword, choice] : constraint) {
        const ppd_choice_t *now = marked(m_ppd, keyword);
        if (!now || !now->option->conflicted || !isMet(keyword, choice))
            return std::nullopt;
        conflict.sides.append(described(text(now->option->keyword), text(now->choice)));
    }
    return conflict;
}

QMap<QString, OptionChoice> PpdDocument::forbiddenChoices(const QString &keyword) const
{
    QMap<QString, OptionChoice> forbidden;
    const auto subject = option(keyword);
    if (!subject)
        return forbidden;
    for (const Constraint &constraint : constraints()) {
        const auto own = std::find_if(constraint.begin(), constraint.end(),
                                      [&](const auto &term) { return term.first == subject->keyword; });
        const auto other = std::find_if(constraint.begin(), constraint.end(),
                                        [&](const auto &term) { return term.first != subject->keyword; });
        if (own == constraint.end() || other == constraint.end())
            continue;
        const bool othersHold = std::all_of(constraint.begin(), constraint.end(), [&](const auto &term) {
            return term.first == subject->keyword || isMet(term.first, term.second);
        });
        if (!othersHold)
            continue;
        for (const PpdOption::Choice &choice : subject->choices) {
            if (own->second.isEmpty() ? !isOffChoice(choice.keyword) : own->second == choice.keyword)
                forbidden.insert(choice.keyword, described(other->first, markedChoice(other->first)));
        }
    }
    return forbidden;
}

QList<Conflict> PpdDocument::conflicts() const
{
    if (ppdConflicts(m_ppd) == 0)
        return {};
    const QStringList order = optionKeywords();
    QList<Conflict> result;
    for (const Constraint &constraint : constraints()) {
        auto conflict = activeConflict(constraint);
        if (!conflict)
            continue;
        // Most PPDs write a constraint once in each direction.
        std::sort(conflict->sides.begin(), conflict->sides.end(),
                  [&](const OptionChoice &a, const OptionChoice &b) {
                      return order.indexOf(a.option) < order.indexOf(b.option);
                  });
        if (!result.contains(*conflict))
            result.append(*conflict);
    }
    return result;
}

std::optional<Resolution> PpdDocument::resolution(const QString &keep) const
{
    if (ppdConflicts(m_ppd) == 0)
        return std::nullopt;
    const QByteArray kept = keep.toUtf8();
    const QByteArray choice = markedChoice(keep).toUtf8();
    const bool hasKept = !kept.isEmpty() && !choice.isEmpty();
    int count = 0;
    cups_option_t *options = nullptr;
    const int resolved = cupsResolveConflicts(m_ppd, hasKept ? kept.constData() : nullptr,
                                              hasKept ? choice.constData() : nullptr, &count, &options);
    Resolution changes;
    for (int i = 0; i < count; ++i) {
        const QString option = text(options[i].name);
        const QString value = text(options[i].value);
        if (hasOption(option) && markedChoice(option) != value)
            changes.append(described(option, value));
    }
    cupsFreeOptions(count, options);
    if (!resolved || changes.isEmpty())
        return keep.isEmpty() ? std::nullopt : resolution();
    return changes;
}

} // namespace host
