// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/batch/batch_run.h"

#include "host/preview/pdf_writer.h"
#include "host/preview/process_thread.h"
#include "host/printing/opened_printer.h"
#include "host/printing/preset_store.h"
#include "host/session/preset_settings.h"
#include "host/session/printed_pages.h"
#include "host/session/protection_checks.h"
#include "host/session/setting_keys.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <algorithm>

namespace host {

namespace {

struct BatchText
{
    Q_DECLARE_TR_FUNCTIONS(BatchText)
};

// Accepting a proposal may cause another conflict. The number of attempts is limited in case they never end.
constexpr int mostProposals = 8;

// While documents are examined or converted, holds signals that end the program, so that the programs that do
// this are ended, and their folders removed, first.
class ConversionScope
{
public:
    ConversionScope() = default;
    ~ConversionScope()
    {
        if (HeldSignals::isPending())
            ProcessThread::instance().endProcesses();
    }
    ConversionScope(const ConversionScope &) = delete;
    ConversionScope &operator=(const ConversionScope &) = delete;

private:
    HeldSignals m_signals; // destroyed after the processes have ended
};

// An option for --list-options. If its value is a code, no choice is marked as current or default.
PpdOption listed(const DialogSession &session, const QString &keyword)
{
    PpdOption option = *session.ppd()->option(keyword);
    if (session.isSecret(keyword)) {
        option.markedChoice.clear();
        option.defaultChoice.clear();
    }
    return option;
}

// The choice that requires a code, if the command line sets some digits of the code as single options but not
// all; null if there is no such code.
QString choiceWithIncompleteCode(const Arguments &arguments, const DialogSession &session)
{
    QStringList given = session.destination().options.keys(), asked;
    for (const Arguments::Assignment &assignment : arguments.assignments)
        asked.append(assignment.key);
    given += asked;
    const auto among = [](const QStringList &names) {
        return [&names](const QString &name) { return names.contains(name, Qt::CaseInsensitive); };
    };
    for (const Protection::Secret &secret : session.protection().secrets) {
        const QStringList &digits = secret.options;
        if (std::any_of(digits.begin(), digits.end(), among(asked)) &&
            !std::all_of(digits.begin(), digits.end(), among(given)) && !among(asked)(secret.key))
            return session.ppd()->described(secret.option, secret.choice).text();
    }
    return {};
}

} // namespace

bool applyAssignments(const Arguments &arguments, DialogSession *session, PrintError *error)
{
    using Kind = ChosenSetting::Kind;
    for (const Arguments::Assignment &assignment : arguments.assignments) {
        const Kind kind = assignment.passOn ? Kind::JobOption : Kind::Key;
        ChosenSetting setting{assignment.key, assignment.value, kind};
        setting.isSecret = assignment.isSecret();
        if (choose(session, setting, error))
            continue;
        if (!assignment.passOn && !hasSetting(*session, setting.key))
            error->message += QLatin1Char(' ') + BatchText::tr("--list-options lists the settings.");
        return false;
    }
    const QString use = choiceWithIncompleteCode(arguments, *session);
    if (!use.isNull())
        *error = {PrintError::Kind::BadValue,
                  BatchText::tr("Only a part of the code for “%1” has been given.").arg(use)};
    return use.isNull();
}

BatchRun::BatchRun(const Arguments &arguments, PrintSystem &system, Extensions &extensions)
    : m_arguments(arguments), m_system(system), m_extensions(extensions)
{
}

BatchRun::~BatchRun() = default;

int BatchRun::run(ResultWriter *writer)
{
    if (m_arguments.batch && m_arguments.output.isEmpty())
        m_result.submission.emplace();
    // Before anything is sent, so that nothing is printed if the result cannot be written.
    if (m_arguments.json && !writer->begin())
        return ExitFailure;
    ExitCode code = prepare();
    if (code == ExitSuccess && m_arguments.batch) {
        if (!m_arguments.json && !writer->writeSettings(m_result))
            return ExitFailure;
        code = m_arguments.output.isEmpty() ? submit() : writePdf();
    }
    if (m_session)
        m_result.notices = m_session->takeNotices() + m_result.notices;
    const int result = writeResult(writer, code);
    m_signals.reset();
    return result;
}

// Writes the result and returns the exit code of the program. If the result cannot be written, the run fails,
// unless a job was submitted.
int BatchRun::writeResult(ResultWriter *writer, ExitCode code)
{
    const bool isWritten = writer->write(m_result, m_arguments.json);
    return isWritten || code != ExitSuccess || m_result.submission ? code : ExitFailure;
}

ExitCode BatchRun::prepare()
{
    if (m_arguments.batch && !openDocuments())
        return ExitFailure;
    PrintError error;
    if (!openSession(&error))
        return fail(error);
    m_result.printer = m_session->destination().name();
    if (m_session->policyViolation() && !m_session->destination().instance.isEmpty())
        return fail(m_session->policyViolation());
    if (!applyAssignments(m_arguments, m_session.get(), &error))
        return fail(error);
    m_session->save();
    const ExitCode settled = settleConflicts();
    if (m_arguments.listOptions) {
        m_result.hasOptions = true;
        for (const QString &keyword : m_session->ppd() ? m_session->ppd()->optionKeywords() : QStringList())
            m_result.options.append(listed(*m_session, keyword));
        m_result.panelKeys = settingKeys(*m_session);
        for (const auto &[panel, key] : std::as_const(m_result.panelKeys))
            m_result.hasSecretKeys |= m_session->isSecret(key);
    }
    if (const QString gap = protectionGap(*m_session); !gap.isNull()) {
        if (mayNotPrintWithProtectionGap())
            return fail({PrintError::Kind::BadValue, gap});
        m_session->addNotice(gap);
    }
    if (m_arguments.summary) {
        m_result.hasSummary = true;
        m_result.summary = m_session->summary();
    }
    if (settled == ExitSuccess && ((m_arguments.batch && !checkDocuments(&error)) || !changePresets(&error)))
        return fail(error);
    return settled;
}

// Whether a password or a code is missing, and the command line does not allow that. A code that the policy
// requires is not checked here: the print system refuses a job without it in any case.
bool BatchRun::mayNotPrintWithProtectionGap() const
{
    if (!m_arguments.batch || !m_arguments.output.isEmpty() || m_arguments.allowNoPassword)
        return false;
    const Protection::Secret *code = missingCode(*m_session);
    return !lackingProtection(*m_session).isEmpty() ||
           (code && m_session->locks().choice(code->option) != code->choice);
}

// Checks the documents with the settings of the session. False with an error if nothing would be printed.
bool BatchRun::checkDocuments(PrintError *error)
{
    const bool isSent = m_arguments.output.isEmpty();
    std::optional<PageSettings> settings = settingsForCheck(*m_session);
    m_pages.documents = m_documents.documents();
    if (isSent)
        *error = scalingProblem(*m_session);
    else if (settings)
        settings->percent = PageSettings::naturalSize; // writing the file scales the pages
    if (*error || !settings)
        return !*error;
    const ConversionScope scope;
    m_pages = checkPages(PageTools::installed(), m_pages.documents, *settings, HeldSignals::isPending);
    if (!m_pages.message.isNull())
        *error = {PrintError::Kind::BadValue, m_pages.message};
    return m_pages.message.isNull();
}

bool BatchRun::changePresets(PrintError *error)
{
    const PresetStore store;
    const QString queue = m_session->destination().queue;
    if (m_arguments.deletePreset && !store.remove(queue, *m_arguments.deletePreset, error))
        return false;
    m_result.deletedPreset = m_arguments.deletePreset.value_or(QString());
    if (m_arguments.savePreset && !savePreset(*m_arguments.savePreset, error))
        return false;
    if (!m_arguments.presets)
        return true;
    m_result.presets = store.list(queue, error);
    for (Preset &preset : m_result.presets ? *m_result.presets : QList<Preset>()) {
        preset.options.removeIf([&](const auto &option) { return m_session->isSecret(option.key()); });
    }
    return m_result.presets.has_value();
}

bool BatchRun::savePreset(const QString &name, PrintError *error)
{
    const PresetStore store;
    const Destination &destination = m_session->destination();
    if (const QString problem = PresetStore::nameProblem(name); !problem.isNull()) {
        *error = {PrintError::Kind::BadValue, problem};
        return false;
    }
    const auto known = store.list(destination.queue, error);
    if (!known)
        return false;
    const Preset *used = presetNamed(*known, destination.instance);
    const QMap<QString, QString> inUse = used ? used->options : QMap<QString, QString>();
    if (!store.save(destination.queue, {name, presetOptions(*m_session, inUse, false)}, error))
        return false;
    m_result.savedPreset = name;
    if (hasSecrets(*m_session))
        m_session->addNotice(
            BatchText::tr("Passwords and codes are not saved in the preset; enter them each time."));
    return true;
}

bool BatchRun::openDocuments()
{
    const QStringList files =
        m_arguments.files.isEmpty() ? QStringList{QStringLiteral("-")} : m_arguments.files;
    return m_documents.open(files, m_input, &m_result.error);
}

// Opens the session. A queue with a broken PPD is refused, since the requested settings would have no effect.
bool BatchRun::openSession(PrintError *error)
{
    auto opened = openPrinter(m_system, {m_arguments.printer, m_arguments.ppdFile}, error);
    if (!opened)
        return false;
    if (opened->ppdProblem) {
        *error = opened->ppdProblem;
        return false;
    }
    m_session = std::make_unique<DialogSession>(opened->destination, std::move(opened->ppd));
    m_session->loadPanels(m_extensions);
    return true;
}

ExitCode BatchRun::settleConflicts()
{
    QList<Conflict> conflicts = m_session->conflicts();
    for (int i = 0; m_arguments.resolve && !conflicts.isEmpty() && i < mostProposals; ++i) {
        const auto proposal = m_session->proposal();
        if (!proposal)
            break;
        m_session->apply(*proposal);
        m_result.resolved += *proposal;
        conflicts = m_session->conflicts();
    }
    if (conflicts.isEmpty())
        return ExitSuccess;
    m_result.conflicts = conflicts;
    QString givenUp;
    m_result.proposal = m_session->proposal(&givenUp);
    if (!givenUp.isNull())
        m_session->addNotice(
            BatchText::tr("No resolution keeps “%1”; change one of the settings.").arg(givenUp));
    return ExitConflict;
}

ExitCode BatchRun::submit()
{
    JobRequest request{m_session->destination(), m_pages.documents, m_arguments.title,
                       m_session->jobOptions()};
    if (request.title.isEmpty())
        request.title = m_documents.title();
    m_signals.emplace();
    m_result.submission = m_system.submit(request, {});
    m_result.queue = request.destination.queue;
    for (const Document &document : m_documents.documents())
        m_result.documents.append(document.name);
    m_result.error = m_result.submission->error;
    switch (m_result.submission->outcome) {
    case Submission::Outcome::Accepted:
        return ExitSuccess;
    case Submission::Outcome::Unknown:
        return ExitUnknown;
    case Submission::Outcome::Rejected:
        break;
    }
    return ExitFailure;
}

ExitCode BatchRun::writePdf()
{
    const ConversionScope scope;
    PdfWriter writer(PageTools::installed());
    QEventLoop untilWritten;
    bool isEnded = false;
    QObject::connect(&writer, &PdfWriter::ended, &untilWritten,
                     [&](const SharedFile &pdf, const PrintError &error) {
                         m_result.error = pdf ? replaceFile(m_arguments.output, pdf) : error;
                         isEnded = true;
                         untilWritten.quit();
                     });
    writer.write(m_documents.documents(), pageSettings(*m_session));
    if (!isEnded)
        execUnless(&untilWritten, HeldSignals::isPending);
    if (!isEnded || m_result.error)
        return ExitFailure;
    m_result.output = m_arguments.output;
    return ExitSuccess;
}

ExitCode BatchRun::fail(const PrintError &error)
{
    m_result.error = error;
    const bool isUsage =
        error.kind == PrintError::Kind::BadValue || error.kind == PrintError::Kind::NoSuchPreset;
    return isUsage ? ExitUsage : ExitFailure;
}

} // namespace host
