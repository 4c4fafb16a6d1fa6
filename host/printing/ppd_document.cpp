// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/ppd_document.h"

#include "host/printing/cups_handles.h"
#include "host/printing/ppd_constraints.h"
#include "host/printing/ppd_texts.h"

#include "constraints/ppd_evaluation.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cups/ppd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <functional>
#include <utility>

#include <fcntl.h>
#include <malloc.h>
#include <sys/mman.h>

// Only the ppd_* files of this folder use the deprecated PPD interface of libcups.
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

// Visits the options of a group and its subgroups, in order.
void forEachOption(ppd_group_t *groups, int count,
                   const std::function<void(const ppd_group_t &, ppd_option_t &)> &visit)
{
    for (int g = 0; g < count; ++g) {
        for (int o = 0; o < groups[g].num_options; ++o)
            visit(groups[g], groups[g].options[o]);
        forEachOption(groups[g].subgroups, groups[g].num_subgroups, visit);
    }
}

const ppd_choice_t *marked(ppd_file_t *ppd, const QString &keyword)
{
    return ppdFindMarkedChoice(ppd, keyword.toUtf8().constData());
}

// Whether a PPD exceeds the size limit after decompression. Only a compressed file has to be read to
// determine this.
bool isTooLarge(const QString &path)
{
    QFile file(path);
    if (file.size() > PpdDocument::mostBytes)
        return true;
    if (!file.open(QIODevice::ReadOnly) || file.read(2) != QByteArrayLiteral("\x1f\x8b"))
        return false;
    const CupsFilePointer unpacked(cupsFileOpen(QFile::encodeName(path).constData(), "r"));
    char block[16 * 1024];
    qint64 total = 0;
    for (ssize_t count = 1; unpacked && count > 0 && total <= PpdDocument::mostBytes; total += count)
        count = cupsFileRead(unpacked.get(), block, sizeof block);
    return total > PpdDocument::mostBytes;
}

PrintError tooLarge(const QString &name)
{
    return {
        PrintError::Kind::BrokenPpd,
        PpdDocumentText::tr("%1 is too large: more than %2 MB.").arg(name).arg(PpdDocument::mostBytes >> 20)};
}

// PageRegion sets the same size as PageSize, so it is not listed as an option of its own.
bool isShadowOfPageSize(const char *keyword)
{
    return qstrcmp(keyword, "PageRegion") == 0;
}

} // namespace

QString OptionChoice::text() const
{
    return PpdDocumentText::tr("%1: %2", "option and its choice").arg(optionText, choiceText);
}

bool PpdOption::hasChoice(const QString &choice) const
{
    QString ignored;
    if (custom && isCustomChoice(choice))
        return custom->read(choice, keyword, &ignored).has_value();
    return std::any_of(choices.begin(), choices.end(), [&](const Choice &c) { return c.keyword == choice; });
}

QString PpdOption::spelled(const QString &choice) const
{
    const auto known = std::find_if(choices.begin(), choices.end(), [&](const Choice &c) {
        return c.keyword.compare(choice, Qt::CaseInsensitive) == 0;
    });
    return known == choices.end() ? choice : known->keyword;
}

PpdDocument::PpdDocument(ppd_file_s *ppd) : m_ppd(ppd)
{
    forEachOption(ppd->groups, ppd->num_groups, [this](const ppd_group_t &group, const ppd_option_t &option) {
        if (isShadowOfPageSize(option.keyword))
            return;
        m_keywords.append(text(option.keyword));
        // A keyword may be in several groups.
        if (ppdFindOption(m_ppd, option.keyword) == &option && qstrcmp(group.name, "InstallableOptions") == 0)
            m_installable.append(m_keywords.last());
    });
    m_settable = m_keywords;
    m_settable.removeIf([this](const QString &keyword) { return m_installable.contains(keyword); });
}

std::unique_ptr<PpdDocument> PpdDocument::open(const QString &path, PrintError *error)
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
    const QString name = PpdDocumentText::tr("The PPD file “%1”").arg(path);
    if (isTooLarge(path)) {
        *error = tooLarge(name);
        return nullptr;
    }
    return adopt(ppdOpenFile(QFile::encodeName(path).constData()), name, error);
}

// libcups reads only from files; this one is in memory, so that a full disk cannot truncate it.
std::unique_ptr<PpdDocument> PpdDocument::ofQueue(const QString &queue, const QByteArray &content,
                                                  PrintError *error)
{
    QFile file;
    const int fd = memfd_create("ppd", MFD_CLOEXEC);
    if (fd < 0 || !file.open(fd, QIODevice::ReadWrite | QIODevice::Unbuffered, QFile::AutoCloseHandle) ||
        file.write(content) != content.size() || !file.seek(0)) {
        *error = {PrintError::Kind::Other,
                  PpdDocumentText::tr("There is not enough memory for the PPD of “%1”: %2.")
                      .arg(queue, qt_error_string(errno))};
        return nullptr;
    }
    const QString name = PpdDocumentText::tr("The PPD of “%1”").arg(queue);
    if (isTooLarge(QStringLiteral("/proc/self/fd/%1").arg(fd))) {
        *error = tooLarge(name);
        return nullptr;
    }
    return adopt(ppdOpenFd(fcntl(fd, F_DUPFD_CLOEXEC, 0)), name, error);
}

// `name` is the name of the PPD in errors.
std::unique_ptr<PpdDocument> PpdDocument::adopt(ppd_file_s *ppd, const QString &name, PrintError *error)
{
    if (!ppd) {
        int line = 0;
        const QString what = text(ppdErrorString(ppdLastError(&line)));
        *error = {PrintError::Kind::BrokenPpd,
                  PpdDocumentText::tr("%1 is broken: line %2: %3.").arg(name).arg(line).arg(what)};
        return nullptr;
    }
    localizePpdTexts(ppd);
    ppdMarkDefaults(ppd);
    std::unique_ptr<PpdDocument> document(new PpdDocument(ppd));
    document->replaceBadCustomDefaults();
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

// The page region is another name of the page size.
bool PpdDocument::hasOption(const QString &keyword) const
{
    const ppd_option_t *option = ppdFindOption(m_ppd, keyword.toUtf8().constData());
    return option && !isShadowOfPageSize(option->keyword);
}

std::optional<PpdOption> PpdDocument::option(const QString &keyword) const
{
    ppd_option_t *record = ppdFindOption(m_ppd, keyword.toUtf8().constData());
    if (!record)
        return std::nullopt;
    PpdOption option;
    option.custom = customChoiceOf(m_ppd, record);
    option.keyword = text(record->keyword);
    option.text = record->text[0] ? text(record->text) : option.keyword;
    option.defaultChoice = text(record->defchoice);
    option.markedChoice = markedChoice(option.keyword);
    for (int i = 0; i < record->num_choices; ++i) {
        const ppd_choice_t &choice = record->choices[i];
        if (!option.custom || qstrcmp(choice.choice, "Custom") != 0)
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
    auto &[known, name] = m_known[keyword];
    if (known && known->marked) // libcups clears this when another choice is marked
        return name;
    const ppd_choice_t *choice = marked(m_ppd, keyword);
    if (!choice)
        return {};
    const auto custom =
        qstrcmp(choice->choice, "Custom") == 0 ? customChoiceOf(m_ppd, choice->option) : std::nullopt;
    if (!custom) {
        known = choice->option->ui == PPD_UI_PICKMANY ? nullptr : choice;
        name = text(choice->choice);
        return name;
    }
    // Panels also mark choices in the record.
    const Written written = m_written.value(text(choice->option->keyword));
    return written.inRecord == custom->current() ? written.choice : custom->current();
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
    const auto custom = isCustomChoice(choice) ? customChoiceOf(m_ppd, option) : std::nullopt;
    if (custom) {
        result.choiceText = custom->shown(choice);
        if (custom->isSecret())
            result.choice = QStringLiteral("Custom");
        return result;
    }
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
    const auto custom = isCustomChoice(choice) ? customChoiceOf(m_ppd, option) : std::nullopt;
    QString problem;
    if (custom && !custom->read(choice, keyword, &problem))
        return false;
    const constraints::PpdEvaluation unchecked(m_ppd);
    ppdMarkOption(m_ppd, option->keyword, choice.toUtf8().constData());
    if (custom)
        m_written[text(option->keyword)] = {choice, customChoiceOf(m_ppd, option)->current()};
    return true;
}

// libcups marks any default of a PPD, even "Custom.foo".
void PpdDocument::replaceBadCustomDefaults()
{
    for (const QString &keyword : optionKeywords()) {
        const QString choice = defaultChoice(keyword);
        if (!isCustomChoice(choice) || mark(keyword, choice))
            continue;
        const auto subject = option(keyword);
        if (subject->custom && !subject->choices.isEmpty())
            mark(keyword, subject->choices.first().keyword);
    }
}

std::optional<PaperSize> PpdDocument::paperSize(const QString &choice) const
{
    constexpr double millimetres = 25.4 / 72; // per point
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

bool PpdDocument::isInstallable(const QString &keyword) const
{
    const ppd_option_t *option = ppdFindOption(m_ppd, keyword.toUtf8().constData());
    return option && m_installable.contains(text(option->keyword));
}

QList<OptionChoice> PpdDocument::changedChoices() const
{
    QList<OptionChoice> changed;
    for (const QString &keyword : m_settable) {
        const QString choice = markedChoice(keyword);
        if (!choice.isEmpty() && choice != defaultChoice(keyword))
            changed.append(described(keyword, choice));
    }
    return changed;
}

PpdConstraints &PpdDocument::constraints() const
{
    if (!m_constraints)
        m_constraints = std::make_unique<PpdConstraints>(this);
    return *m_constraints;
}

void PpdDocument::releaseConstraintRecords()
{
    constexpr int many = 1000;
    readConstraints();
    (void)ppdConflicts(m_ppd); // reads them on the first call
    const bool isLarge = m_ppd->num_consts >= many;
    std::free(std::exchange(m_ppd->consts, nullptr));
    m_ppd->num_consts = 0;
    if (isLarge)
        malloc_trim(0); // the array lies between chunks that are in use
}

QList<Conflict> PpdDocument::conflicts() const
{
    return constraints().conflicts();
}

QMap<QString, OptionChoice> PpdDocument::forbiddenChoices(const QString &keyword) const
{
    return constraints().forbiddenChoices(keyword);
}

QList<quint32> PpdDocument::forbiddenRevisions(const QStringList &keywords) const
{
    return constraints().revisions(keywords);
}

std::optional<Resolution> PpdDocument::resolution(const QString &keep) const
{
    const constraints::PpdRules &rules = constraints().rules();
    if (rules.brokenLines().empty())
        return std::nullopt;
    const constraints::PpdEvaluation limited(m_ppd, rules);
    const QByteArray kept = keep.toUtf8();
    // By the keyword in libcups, which is "Custom" for all custom choices.
    const auto keywordOf = [this](const QString &option) {
        const ppd_choice_t *choice = marked(m_ppd, option);
        return choice ? text(choice->choice) : QString();
    };
    const QByteArray choice = keywordOf(keep).toUtf8();
    const bool hasKept = !kept.isEmpty() && !choice.isEmpty();
    int count = 0;
    cups_option_t *options = nullptr;
    const int resolved = cupsResolveConflicts(m_ppd, hasKept ? kept.constData() : nullptr,
                                              hasKept ? choice.constData() : nullptr, &count, &options);
    Resolution changes;
    for (int i = 0; i < count; ++i) {
        const QString option = text(options[i].name);
        const QString value = text(options[i].value);
        if (hasOption(option) && keywordOf(option) != value)
            changes.append(described(option, value));
    }
    cupsFreeOptions(count, options);
    if (!resolved || changes.isEmpty())
        return keep.isEmpty() ? std::nullopt : resolution();
    return changes;
}

} // namespace host
