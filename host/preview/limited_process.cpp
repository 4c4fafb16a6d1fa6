// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/limited_process.h"

#include <QCoreApplication>

#include <csignal>

#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host {

namespace {

void limit(__rlimit_resource resource, qint64 most)
{
    const rlimit both{static_cast<rlim_t>(most), static_cast<rlim_t>(most)};
    setrlimit(resource, &both);
}

// Runs in the child, between fork and exec: calls of the system only.
void confine(int input, int output, const std::vector<int> &others, const LimitedProcess::Limits &limits)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    setpgid(0, 0); // what it starts ends with it
    dup2(input, STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    for (const int other : others)
        fcntl(other, F_SETFD, 0);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_AS, limits.memory);
    limit(RLIMIT_FSIZE, limits.output);
    limit(RLIMIT_CPU, std::chrono::ceil<std::chrono::seconds>(limits.time).count());
}

// One that has been killed may still be waited for when the program ends.
class MortalProcess : public QProcess
{
public:
    ~MortalProcess() override
    {
        if (state() != NotRunning)
            waitForFinished(100); // milliseconds; a killed process is gone at once
    }
};

// A process, and what it has started.
void killAll(QProcess *process)
{
    if (process->processId() > 0)
        ::kill(-static_cast<pid_t>(process->processId()), SIGKILL);
    process->kill();
}

} // namespace

FileView::FileView(const SharedFile &file)
{
    struct stat facts = {};
    if (!file || fstat(file->get(), &facts) != 0 || facts.st_size <= 0)
        return;
    const auto size = static_cast<size_t>(facts.st_size);
    void *place = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file->get(), 0);
    if (place != MAP_FAILED)
        m_bytes = {static_cast<const char *>(place), facts.st_size};
}

FileView::~FileView()
{
    if (!m_bytes.isEmpty())
        munmap(const_cast<char *>(m_bytes.data()), static_cast<size_t>(m_bytes.size()));
}

LimitedProcess::LimitedProcess(QObject *parent) : QObject(parent)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_problem = tr("it took too long");
        finish(false);
    });
}

LimitedProcess::~LimitedProcess()
{
    if (!m_process)
        return;
    m_process->disconnect(this);
    killAll(m_process.get());
}

QString LimitedProcess::pathFor(const SharedFile &file)
{
    return QStringLiteral("/proc/self/fd/%1").arg(file->get());
}

void LimitedProcess::start(const Call &call)
{
    stop();
    m_problem = QString();
    m_output = std::make_shared<const platform::UniqueFd>(memfd_create("pages", MFD_CLOEXEC));
    if (!*m_output) {
        m_problem = tr("there is not enough memory");
        QMetaObject::invokeMethod(
            this, [this] { Q_EMIT ended(nullptr); }, Qt::QueuedConnection);
        return;
    }
    m_process = std::make_unique<MortalProcess>();
    m_process->setProgram(call.program);
    m_process->setArguments(call.arguments);
    m_process->setProcessChannelMode(QProcess::ForwardedOutputChannel);
    m_process->setInputChannelMode(QProcess::ForwardedInputChannel);
    m_process->setStandardErrorFile(QProcess::nullDevice());
    if (!call.environment.isEmpty())
        m_process->setEnvironment(QProcess::systemEnvironment() + call.environment);
    std::vector<int> others;
    for (const SharedFile &other : call.others)
        others.push_back(other->get());
    m_process->setChildProcessModifier(
        [input = call.input, output = m_output, others = std::move(others), limits = m_limits] {
            confine(input->get(), output->get(), others, limits);
        });
    connect(m_process.get(), &QProcess::finished, this, [this](int code, QProcess::ExitStatus status) {
        if (status == QProcess::CrashExit)
            m_problem = tr("it ended unexpectedly");
        finish(code == 0 && status == QProcess::NormalExit);
    });
    connect(
        m_process.get(), &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            if (error != QProcess::FailedToStart)
                return;
            m_problem = tr("it cannot be started");
            finish(false);
        },
        Qt::QueuedConnection);
    m_timer.start(m_limits.time);
    m_process->start(QIODevice::ReadOnly);
}

void LimitedProcess::stop()
{
    m_timer.stop();
    m_output.reset();
    letGo();
}

// Ends the process. Nobody waits until it is gone.
void LimitedProcess::letGo()
{
    if (!m_process)
        return;
    QProcess *const process = m_process.release();
    process->disconnect(this);
    if (process->state() == QProcess::NotRunning) {
        process->deleteLater(); // it may be what calls this
        return;
    }
    killAll(process);
    process->setParent(QCoreApplication::instance());
    connect(process, &QProcess::finished, process, &QObject::deleteLater);
}

void LimitedProcess::finish(bool isDone)
{
    if (!m_process)
        return;
    m_timer.stop();
    letGo();
    const SharedFile output = isDone ? std::move(m_output) : nullptr;
    m_output.reset();
    Q_EMIT ended(output);
}

} // namespace host
