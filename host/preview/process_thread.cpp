// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/process_thread.h"

#include <QCoreApplication>

namespace host {

namespace {

void deleteChildrenOf(const QObject &owner)
{
    while (!owner.children().isEmpty()) // each deletion removes the child from the list
        delete owner.children().constFirst();
}

} // namespace

ProcessThread &ProcessThread::instance()
{
    static auto *const thread = new ProcessThread; // worker threads may outlive static objects
    return *thread;
}

ProcessThread::ProcessThread()
{
    m_owner.moveToThread(&m_thread);
    QObject::connect(
        &m_thread, &QThread::finished, &m_owner, [this] { deleteChildrenOf(m_owner); }, Qt::DirectConnection);
    m_thread.start();
    qAddPostRoutine([] {
        instance().m_thread.quit();
        instance().m_thread.wait();
    });
}

void ProcessThread::endProcesses()
{
    QMetaObject::invokeMethod(
        &m_owner, [this] { deleteChildrenOf(m_owner); }, Qt::BlockingQueuedConnection);
}

} // namespace host
