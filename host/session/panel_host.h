// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/print_dialog.h"
#include "platform/printing_manager.h"

#include <QObject>

namespace host {

struct Destination;

// The interfaces of a session for its panels. Owned by the session; outlives the panels.
class PanelHost : public QObject,
                  public platform::PrintDialogHost,
                  public platform::ConstraintResolvingHost,
                  public platform::BlockingWorkHost,
                  public platform::PanelProblemHost
{
    Q_OBJECT
public:
    // `ppd` may be null; the session owns it.
    PanelHost(const Destination &destination, ppd_file_s *ppd);

    platform::PrintSettings &settings() { return m_settings; }
    const platform::PrintSettings &settings() const { return m_settings; }

    PMPrintSettings printSettings() override { return &m_settings; }
    PMPrintSession printSession() override { return &m_session; }
    ppd_file_s *ppdFile() override { return m_ppd; }
    void willChangePPDOptionKeyValuePpdChoice(const QString &keyword, const QVariant &choice) override;
    void willBlock(const QString &what) override { Q_EMIT blockingBegan(what); }
    void didBlock() override { Q_EMIT blockingEnded(); }
    void panelFailed(const QString &className, const QString &reason) override;

Q_SIGNALS:
    // The choice of an option, or a print setting, is about to change. The actual change is known when the
    // call of the panel has returned.
    void changeAnnounced(const QString &keyword);
    // Emitted directly: paint now, since the thread is about to block. Calls may nest.
    void blockingBegan(const QString &what);
    void blockingEnded();
    void failed(const QString &reason);

private:
    platform::PrintSettings m_settings;
    platform::PrintSession m_session;
    ppd_file_s *m_ppd;
};

} // namespace host
