// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/background.h"

#include <QEventLoop>

// Runs an event loop until the work has ended or `giveUp` is called.
class LoopWaiter : public platform::Waiter
{
public:
    bool isGivenUp() const override { return m_givenUp; }
    bool wait(const std::function<bool()> &ended) override
    {
        m_ended = ended;
        if (!ended() && !m_givenUp)
            m_loop.exec();
        return ended();
    }
    void wake() override
    {
        QMetaObject::invokeMethod(&m_loop, [this] {
            if (m_ended && m_ended())
                m_loop.quit();
        });
    }
    void giveUp()
    {
        m_givenUp = true;
        m_loop.quit();
    }

private:
    QEventLoop m_loop;
    std::function<bool()> m_ended;
    bool m_givenUp = false;
};
