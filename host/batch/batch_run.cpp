// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/batch/batch_run.h"

#include "host/session/setting_keys.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

namespace host {

namespace {

struct BatchText
{
    Q_DECLARE_TR_FUNCTIONS(BatchText)
};

// A proposal may uncover the next conflict; a PPD that never comes to rest must not hold the run.
constexpr int mostProposals = 8;

// Marks the options that a standard name such as "media" stands for, as the user's choices.
bool markStandardName(const Arguments::Assignment &assignment, DialogSession *session, PrintError *error)
{
    const QMap<QString, QString> choices = session->ppd()->standardChoices(assignment.key, assignment.value);
    for (auto it = choices.begin(); it != choices.end(); ++it)
        session->markChoice(it.key(), it.value());
    if (choices.isEmpty())
        *error = {PrintError::Kind::BadValue,
                  BatchText::tr("%1: this printer has no “%2”.").arg(assignment.key, assignment.value)};
    return !choices.isEmpty();
}

QString titleOf(const QList<Document> &documents)
{
    return documents.isEmpty() ? QString() : documents.first().name;
}

} // namespace

std::unique_ptr<DialogSession> openSession(const Arguments &arguments, PrintSystem &system,
                                           Extensions &extensions, PrintError *error)
{
    Destination destination;
    const bool hasQueue = !arguments.printer.isEmpty() || arguments.ppdFile.isEmpty();
    if (hasQueue) {
        const auto found = system.destination(arguments.printer, error);
        if (!found)
            return nullptr;
        destination = *found;
    } else {
        destination.info = QFileInfo(arguments.ppdFile).fileName();
    }
    auto ppd = arguments.ppdFile.isEmpty() ? system.ppd(destination, error)
                                           : PpdDocument::open(arguments.ppdFile, error);
    if (!ppd && *error)
        return nullptr;
    auto session = std::make_unique<DialogSession>(destination, std::move(ppd));
    session->loadPanels(extensions);
    return session;
}

bool applyAssignments(const Arguments &arguments, DialogSession *session, QList<JobOption> *passedOn,
                      PrintError *error)
{
    SettingKeys keys(session);
    for (const Arguments::Assignment &assignment : arguments.assignments) {
        if (assignment.passOn && !keys.knows(assignment.key)) {
            if (!session->ppd() || !session->ppd()->takesOption(assignment.key))
                passedOn->append({assignment.key, assignment.value, JobOption::Kind::Attribute});
            else if (!markStandardName(assignment, session, error))
                return false;
        } else if (!keys.set(assignment.key, assignment.value, error)) {
            return false;
        }
    }
    return true;
}

BatchRun::BatchRun(const Arguments &arguments, PrintSystem &system, Extensions &extensions)
    : m_arguments(arguments), m_system(system), m_extensions(extensions)
{
}

BatchRun::~BatchRun() = default;

int BatchRun::run(ResultWriter *writer)
{
    const ExitCode code = perform();
    if (m_session)
        m_result.notices = m_session->takeNotices() + m_result.notices;
    writer->write(m_result, m_arguments.json);
    return code;
}

ExitCode BatchRun::perform()
{
    if (m_arguments.batch && !openDocuments())
        return ExitFailure;
    PrintError error;
    m_session = openSession(m_arguments, m_system, m_extensions, &error);
    if (!m_session)
        return fail(error);
    m_result.printer = m_session->destination().name();
    if (!applyAssignments(m_arguments, m_session.get(), &m_passedOn, &error))
        return fail(error);
    m_session->save();
    if (m_arguments.listOptions) {
        m_result.hasOptions = true;
        for (const QString &keyword : m_session->ppd() ? m_session->ppd()->optionKeywords() : QStringList())
            m_result.options.append(*m_session->ppd()->option(keyword));
        m_result.panelKeys = SettingKeys(m_session.get()).panelKeys();
    }
    const ExitCode settled = settleConflicts();
    if (m_arguments.summary) {
        m_result.hasSummary = true;
        m_result.summary = m_session->summary();
    }
    if (settled != ExitSuccess)
        return settled;
    return m_arguments.batch ? submit() : ExitSuccess;
}

bool BatchRun::openDocuments()
{
    QStringList files = m_arguments.files;
    if (files.isEmpty())
        files.append(QStringLiteral("-"));
    for (const QString &path : files) {
        std::optional<Document> document;
        if (path == QLatin1String("-")) {
            QFile standardInput;
            if (!m_input && standardInput.open(stdin, QIODevice::ReadOnly))
                m_input = &standardInput;
            m_spool = spoolInput(m_input, &m_result.error);
            m_input = nullptr;
            document = m_spool ? openDocument(m_spool->fileName(), &m_result.error) : std::nullopt;
            if (document)
                document->name = BatchText::tr("Standard input");
        } else {
            document = openDocument(path, &m_result.error);
        }
        if (!document)
            return false;
        m_documents.append(*document);
    }
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
    m_result.proposal = m_session->proposal();
    return ExitConflict;
}

ExitCode BatchRun::submit()
{
    JobRequest request{m_session->destination(), m_documents, m_arguments.title,
                       m_session->jobOptions() + m_passedOn};
    if (request.title.isEmpty())
        request.title = titleOf(m_documents);
    PrintError error;
    m_result.job = m_system.submit(request, &error);
    if (!m_result.job)
        return fail(error);
    m_result.queue = request.destination.queue;
    m_result.fileCount = m_documents.size();
    return ExitSuccess;
}

ExitCode BatchRun::fail(const PrintError &error)
{
    m_result.error = error;
    return error.kind == PrintError::Kind::BadValue ? ExitUsage : ExitFailure;
}

} // namespace host
