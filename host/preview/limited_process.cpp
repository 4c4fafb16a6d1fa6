// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/limited_process.h"

#include "host/preview/process_thread.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <utility>

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host {

FileView::FileView(const SharedFile &file)
{
    struct stat facts = {};
    if (!file || fstat(file->get(), &facts) != 0 || facts.st_size <= 0)
        return;
    const auto size = static_cast<qsizetype>(facts.st_size);
    if (size != facts.st_size)
        return; // larger than the address space of a 32-bit system
    void *place = mmap(nullptr, static_cast<size_t>(size), PROT_READ, MAP_PRIVATE, file->get(), 0);
    if (place != MAP_FAILED)
        m_bytes = {static_cast<const char *>(place), size};
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
    killProcess();
}

QString LimitedProcess::pathFor(const SharedFile &file)
{
    return QStringLiteral("/proc/self/fd/%1").arg(file->get());
}

void LimitedProcess::start(const Call &call)
{
    stop();
    m_problem = QString();
    struct stat facts = {};
    m_inputSize = fstat(call.input->get(), &facts) == 0 ? facts.st_size : 0;
    m_output = std::make_shared<const platform::UniqueFd>(memfd_create("pages", MFD_CLOEXEC));
    const int error = *m_output ? 0 : errno;
    ConfinedProcess::Call confined{
        QFile::encodeName(call.program), {}, {}, call.input->get(), m_output->get()};
    for (const QString &argument : call.arguments)
        confined.arguments.append(QFile::encodeName(argument));
    for (const QString &variable : call.environment)
        confined.environment.append(variable.toUtf8());
    for (const SharedFile &other : call.others)
        confined.others.push_back(other->get());
    auto *process = new ConfinedProcess;
    m_process = process;
    m_isWanted = std::make_shared<std::atomic<bool>>(true);
    connect(process, &ConfinedProcess::ended, this,
            [this, isWanted = m_isWanted](ConfinedProcess::End end, int reason) {
                if (*isWanted)
                    processEnded(end, reason);
            });
    m_timer.start(m_limits.time);
    ProcessThread::instance().take(process);
    // Captures `call` and `output`, whose files must be open until the process has been started.
    QMetaObject::invokeMethod(process, [process, confined, error, limits = m_limits, isWanted = m_isWanted,
                                        call, output = m_output] {
        ProcessThread::instance().own(process);
        if (*isWanted && (error != 0 || !process->start(confined, limits)))
            Q_EMIT process->ended(ConfinedProcess::End::NotStarted, error != 0 ? error : errno);
    });
}

void LimitedProcess::processEnded(ConfinedProcess::End end, int error)
{
    // Programs copy the document to their folder. If that is full, they report the same error as for a broken
    // document.
    const bool isLarge = m_inputSize > m_limits.output / 2;
    struct stat facts = {};
    if (end == ConfinedProcess::End::NotStarted)
        m_problem = tr("it cannot be started: %1").arg(QString::fromLocal8Bit(std::strerror(error)));
    else if (end != ConfinedProcess::End::Done && fstat(m_output->get(), &facts) == 0 &&
             facts.st_size >= m_limits.output)
        m_problem = tr("it wrote too much");
    else if (end == ConfinedProcess::End::Crashed)
        m_problem = tr("it ended unexpectedly");
    else if (end == ConfinedProcess::End::Failed && isLarge)
        m_problem = tr("the document is too large");
    finish(end == ConfinedProcess::End::Done);
}

void LimitedProcess::stop()
{
    m_timer.stop();
    m_output.reset();
    killProcess();
}

// Kills the process, which is deleted when it has ended.
void LimitedProcess::killProcess()
{
    if (!m_process)
        return;
    *m_isWanted = false;
    ConfinedProcess *const process = std::exchange(m_process, nullptr);
    QMetaObject::invokeMethod(process, [process] {
        if (!process->isRunning()) {
            process->deleteLater();
            return;
        }
        connect(process, &ConfinedProcess::ended, process, &QObject::deleteLater);
        process->kill();
    });
}

void LimitedProcess::finish(bool isDone)
{
    if (!m_process)
        return;
    m_timer.stop();
    killProcess();
    const SharedFile output = isDone ? std::move(m_output) : nullptr;
    m_output.reset();
    Q_EMIT ended(output);
}

} // namespace host
