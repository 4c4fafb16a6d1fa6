// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/print_system.h"

#include "host/printing/cups_handles.h"
#include "host/printing/device_query.h"
#include "host/printing/early_printer.h"
#include "host/printing/file_name.h"
#include "host/printing/ipp_query.h"
#include "host/printing/job_submitter.h"
#include "host/printing/preset_store.h"
#include "host/printing/reasons.h"

#include <QCoreApplication>

#include <algorithm>

namespace host {

namespace {

// Number of queries about a job that has not started for each query about its printer.
constexpr int looksPerPrinter = 3;

struct PrintSystemText
{
    Q_DECLARE_TR_FUNCTIONS(PrintSystemText)
};

QString optionOf(const cups_dest_t *destination, const char *name)
{
    return QString::fromUtf8(cupsGetOption(name, destination->num_options, destination->options));
}

Destination fromCups(const cups_dest_t *record)
{
    Destination destination;
    destination.queue = QString::fromUtf8(record->name);
    destination.instance = fileNameFromBytes(record->instance);
    destination.isDefault = record->is_default != 0;
    destination.info = optionOf(record, "printer-info");
    destination.location = optionOf(record, "printer-location");
    destination.makeAndModel = optionOf(record, "printer-make-and-model");
    destination.deviceUri = optionOf(record, "device-uri");
    destination.printerUri = optionOf(record, "printer-uri-supported");
    destination.isStateKnown = !optionOf(record, "printer-state").isEmpty();
    destination.accepting = optionOf(record, "printer-is-accepting-jobs") != QLatin1String("false");
    destination.stopped = optionOf(record, "printer-state").toInt() == IPP_PSTATE_STOPPED;
    for (int i = 0; i < record->num_options; ++i)
        destination.options.insert(QString::fromUtf8(record->options[i].name),
                                   QString::fromUtf8(record->options[i].value));
    return destination;
}

// If the administrator has set a default that differs from the PPD, libcups lists that of the PPD.
void correctDefaults(const QueueFacts &facts, Destination *destination)
{
    for (auto it = facts.overruledDefaults.begin(); it != facts.overruledDefaults.end(); ++it) {
        auto listed = destination->options.find(it.key());
        if (listed != destination->options.end() && *listed == it.value())
            *listed = facts.defaults.value(it.key());
    }
}

void takeFacts(const QueueFacts &facts, Destination *destination)
{
    correctDefaults(facts, destination);
    destination->queueDefaults = facts.defaults;
    destination->coverSheets = facts.coverSheets;
    destination->passwordLength = facts.passwordLength;
    destination->passwordEncryptions = facts.passwordEncryptions;
    destination->takesAccountId = facts.takesAccountId;
    destination->takesAccountUser = facts.takesAccountUser;
}

// libcups returns a destination for any preset name, and ignores a file that cannot be read.
bool takePreset(Destination *destination, PrintError *error)
{
    destination->serverOptions = destination->options.keys();
    const auto presets = PresetStore().list(destination->queue, error);
    if (!presets && destination->instance.isEmpty()) {
        destination->optionsProblem =
            PrintSystemText::tr("Your own defaults for this printer are not used. %1").arg(error->message);
        *error = {};
        return true;
    }
    if (!presets)
        return false;
    const bool isThere = destination->instance.isEmpty() || presetNamed(*presets, destination->instance);
    for (const Preset &preset : *presets) {
        const bool isUsed = preset.name.isEmpty() || isSamePreset(preset.name, destination->instance);
        // libcups ignores letter case
        for (const QString &name : isUsed ? preset.options.keys() : QStringList())
            destination->serverOptions.removeIf(
                [&name](const QString &known) { return known.compare(name, Qt::CaseInsensitive) == 0; });
    }
    if (!isThere)
        *error = {PrintError::Kind::NoSuchPreset, PrintSystemText::tr("“%1” has no preset called “%2”.")
                                                      .arg(destination->queue, destination->instance)};
    return isThere;
}

QByteArray uriOf(const Destination &destination)
{
    return destination.printerUri.isEmpty() ? printerUriOfQueue(destination.queue)
                                            : destination.printerUri.toUtf8();
}

PrintError noDefault()
{
    return {PrintError::Kind::NoSuchPrinter,
            PrintSystemText::tr("No default printer has been set; choose a printer by name.")};
}

PrintError onlyOpensDialog(const Destination &destination)
{
    return {
        PrintError::Kind::NoSuchPrinter,
        PrintSystemText::tr("“%1” opens the print dialog and prints nothing itself; choose another printer.")
            .arg(destination.displayName())};
}

// libcups does not distinguish an unreachable server from a server without printers.
std::optional<PrintError> problemOfServer(LoginKeeper *login)
{
    IppPointer request(ippNewRequest(IPP_OP_CUPS_GET_PRINTERS));
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "limit", 1);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "printer-name");
    const Reply reply = ServerConnection(login).ask(std::move(request), "/");
    const bool isThere = reply.succeeded() || (reply.outcome == Reply::Outcome::Answered &&
                                               reply.status == IPP_STATUS_ERROR_NOT_FOUND);
    return isThere ? std::nullopt : std::optional(reply.error({}));
}

} // namespace

PrintSystem::~PrintSystem() = default;

// The login for one call; it is returned when the call ends.
class CupsPrintSystem::Visit
{
public:
    // After the user has declined to log in, requests of the user prompt again, but periodic ones do not.
    enum class Cause { User, Clock };
    explicit Visit(CupsPrintSystem *system, Cause cause = Cause::User) : m_system(system)
    {
        const std::lock_guard lock(system->m_loginMutex);
        if (cause == Cause::User)
            system->m_wasRefused = false;
        m_login = system->m_login;
        m_refusals = system->m_refusals;
        if (system->m_wasRefused)
            m_login.prompt = nullptr;
        else if (m_login.prompt)
            m_login.prompt = [this](const LoginQuestion &question) {
                return m_system->askOnce(*this, question);
            };
    }
    ~Visit()
    {
        const std::lock_guard lock(m_system->m_loginMutex);
        if (!m_login.accepted.isEmpty()) {
            m_system->m_login.given = m_login.given;
            m_system->m_login.accepted = m_login.accepted;
        }
    }
    Visit(const Visit &) = delete;
    Visit &operator=(const Visit &) = delete;
    LoginKeeper *login() { return &m_login; }
    // The login that has been tried.
    const std::optional<Login> &tried() const { return m_login.given; }
    // The number of refusals when the call began.
    int refusals() const { return m_refusals; }

private:
    CupsPrintSystem *m_system;
    LoginKeeper m_login;
    int m_refusals = 0;
};

void CupsPrintSystem::setLoginPrompt(LoginPrompt prompt)
{
    const std::lock_guard lock(m_loginMutex);
    m_login.prompt = std::move(prompt);
}

// An answer or a refusal applies to all calls that are in progress.
std::optional<Login> CupsPrintSystem::askOnce(const Visit &visit, const LoginQuestion &question)
{
    const std::lock_guard asking(m_promptMutex);
    LoginPrompt prompt;
    {
        const std::lock_guard lock(m_loginMutex);
        if (m_refusals > visit.refusals())
            return std::nullopt;
        if (m_login.given && m_login.given != visit.tried())
            return m_login.given;
        prompt = m_login.prompt;
    }
    const auto login = prompt ? prompt(question) : std::nullopt;
    const std::lock_guard lock(m_loginMutex);
    m_login.given = login;
    m_wasRefused = !login;
    if (!login)
        ++m_refusals;
    return login;
}

std::optional<QList<Destination>> CupsPrintSystem::destinations(PrintError *error)
{
    Visit visit(this);
    ServerConnection server(visit.login());
    const auto queues = queryQueues(&server, error);
    if (!queues)
        return std::nullopt;
    PrintError ignored; // without presets the queues are still listed
    const auto presets = PresetStore().names(&ignored).value_or(PresetStore::Names());
    QList<Destination> list;
    for (const Destination &queue : *queues) {
        if (queue.opensDialog())
            continue;
        list.append(queue);
        for (const QString &name : presets.value(queue.queue.toLower())) {
            list.append(queue);
            list.last().instance = name;
        }
    }
    return list;
}

std::optional<Destination> CupsPrintSystem::destination(const QString &name, PrintError *error)
{
    if (auto early = m_early ? m_early->takeDestination(name) : std::nullopt)
        return early;
    const auto [queue, instance] = splitDestinationName(name);
    Visit visit(this);
    ServerConnection server(visit.login());
    // libcups would search the network for a queue that the server does not have, and would not report that
    // the server cannot be reached.
    std::optional<QueueFacts> facts;
    if (!name.isEmpty()) {
        Destination wanted;
        wanted.queue = queue;
        wanted.info = name;
        facts = factsOf(&server, wanted, error);
        if (!facts)
            return std::nullopt;
    }
    ServerConnection::disablePrompts();
    const QByteArray queueBytes = queue.toUtf8();
    const QByteArray instanceBytes = fileNameToBytes(instance);
    http_t *handle = server.handle();
    const CupsDestinationPointer record(
        handle ? cupsGetNamedDest(handle, name.isEmpty() ? nullptr : queueBytes.constData(),
                                  instance.isEmpty() ? nullptr : instanceBytes.constData())
               : nullptr);
    if (record) {
        Destination destination = fromCups(record.get());
        PrintError ignored;
        if (!facts)
            facts = queryQueue(&server, printerUriOfQueue(destination.queue), destination.queue, &ignored);
        destination.isOnNetwork = m_network.hasFound(destination.queue);
        takeFacts(facts.value_or(QueueFacts()), &destination);
        if (!takePreset(&destination, error))
            return std::nullopt;
        if (!destination.opensDialog())
            return destination;
        *error = name.isEmpty() ? noDefault() : onlyOpensDialog(destination);
        return std::nullopt;
    }
    if (const auto problem = problemOfServer(visit.login()))
        *error = *problem;
    else if (name.isEmpty())
        *error = noDefault();
    else
        *error = {PrintError::Kind::NoSuchPrinter,
                  PrintSystemText::tr("There is no printer called “%1”.").arg(name)};
    return std::nullopt;
}

// A queue for a network printer is created on first use, and again if the server has removed it since.
std::optional<QueueFacts> CupsPrintSystem::factsOf(ServerConnection *server, const Destination &destination,
                                                   PrintError *error)
{
    const QByteArray uri = uriOf(destination);
    auto facts = queryQueue(server, uri, destination.displayName(), error);
    if (facts || error->kind != PrintError::Kind::NoSuchPrinter || !m_network.makeQueue(destination.queue))
        return facts;
    *error = {};
    return queryQueue(server, uri, destination.displayName(), error);
}

void CupsPrintSystem::searchNetwork(const std::function<bool(const Destination &)> &found)
{
    m_network.search(found);
}

std::unique_ptr<PpdDocument> CupsPrintSystem::ppd(const Destination &destination, PrintError *error)
{
    if (auto early = m_early ? m_early->takePpd(destination.queue) : nullptr)
        return early;
    Visit visit(this);
    ServerConnection server(visit.login());
    const auto content = server.fetch(resourceOf(uriOf(destination)) + ".ppd", maxPpdSize, error);
    return content ? PpdDocument::ofQueue(destination.queue, *content, error) : nullptr;
}

Submission CupsPrintSystem::submit(const JobRequest &request, const SubmissionWatch &watch)
{
    Visit visit(this);
    if (m_network.hasFound(request.destination.queue)) {
        ServerConnection server(visit.login());
        PrintError ignored; // submitting the job reports it
        factsOf(&server, request.destination, &ignored);
    }
    return JobSubmitter(request, watch, visit.login()).submit();
}

JobStatus CupsPrintSystem::jobStatus(const Destination &destination, int jobId)
{
    Visit visit(this, Visit::Cause::Clock);
    ServerConnection server(visit.login());
    JobStatus status;
    if (JobLookup(visit.login(), uriOf(destination)).status(jobId, &server, &status) ==
        JobLookup::Result::NotThere)
        status.state = JobStatus::State::Gone;
    if (status.state == JobStatus::State::Pending)
        addPrinterState(&server, destination, jobId, &status);
    return status;
}

void CupsPrintSystem::addPrinterState(ServerConnection *server, const Destination &destination, int jobId,
                                      JobStatus *status)
{
    const auto add = [&] {
        const Waiting &waiting = m_waiting[jobId];
        status->printerStopped |= waiting.isStopped;
        if (status->message.isEmpty())
            status->message = waiting.message;
    };
    {
        const std::lock_guard lock(m_waitingMutex);
        if (m_waiting.contains(jobId) && ++m_waiting[jobId].looks < looksPerPrinter)
            return add();
    }
    PrintError ignored;
    const auto queue =
        queryQueue(server, uriOf(destination), destination.displayName(), &ignored, QueueQuestion::State);
    if (!queue)
        return;
    const std::lock_guard lock(m_waitingMutex);
    m_waiting[jobId] = {0, queue->stopped, reasonText(queue->stateReasons, queue->stateMessage)};
    add();
}

bool CupsPrintSystem::changeJob(const Destination &destination, int jobId, JobAction action,
                                PrintError *error)
{
    Visit visit(this);
    const ipp_op_t operation = action == JobAction::Cancel ? IPP_OP_CANCEL_JOB
                               : action == JobAction::Hold ? IPP_OP_HOLD_JOB
                                                           : IPP_OP_RELEASE_JOB;
    const Reply reply = JobLookup(visit.login(), uriOf(destination)).change(operation, jobId);
    if (reply.succeeded())
        return true;
    *error = reply.error(destination.displayName());
    return false;
}

std::optional<DeviceReport> CupsPrintSystem::reportOf(const Destination &destination)
{
    return queryDevice(destination);
}

std::optional<Destination> CupsPrintSystem::withState(const Destination &destination)
{
    Visit visit(this, Visit::Cause::Clock);
    ServerConnection server(visit.login());
    PrintError ignored;
    const auto queue =
        queryQueue(&server, uriOf(destination), destination.displayName(), &ignored, QueueQuestion::State);
    if (!queue)
        return std::nullopt;
    Destination now = destination;
    now.isStateKnown = true;
    now.accepting = queue->accepting;
    now.stopped = queue->stopped;
    now.problem = reasonText(queue->stateReasons, {});
    now.supplies = queue->supplies;
    return now;
}

} // namespace host
