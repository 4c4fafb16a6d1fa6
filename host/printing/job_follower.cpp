// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/job_follower.h"

#include "platform/background.h"

#include <chrono>

namespace host {

namespace {

constexpr std::chrono::seconds atFirst(1);
constexpr std::chrono::seconds later(5);
constexpr int quickQuestions = 10;

} // namespace

JobFollower::JobFollower(QObject *parent) : QObject(parent)
{
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &JobFollower::ask);
}

void JobFollower::follow(Query query)
{
    stop();
    m_query = std::move(query);
    m_asked = 0;
    m_next.start(atFirst);
}

void JobFollower::stop()
{
    ++m_round;
    m_next.stop();
    m_query = nullptr;
}

void JobFollower::askSoon()
{
    if (!m_query)
        return;
    ++m_round; // discards the running query
    m_asked = 0;
    m_next.start(std::chrono::milliseconds(0));
}

void JobFollower::ask()
{
    ++m_asked;
    platform::startOnWorker(this, m_query,
                            [this, round = m_round](const JobStatus &status) { answered(round, status); });
}

void JobFollower::answered(int round, const JobStatus &status)
{
    if (round != m_round)
        return;
    if (status.isFinal())
        stop();
    else
        m_next.start(m_asked < quickQuestions ? atFirst : later);
    Q_EMIT changed(status);
}

} // namespace host
