// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/panel_host.h"

#include "host/printing/destination.h"

namespace host {

PanelHost::PanelHost(const Destination &destination, ppd_file_s *ppd) : m_ppd(ppd)
{
    m_session.printer = platform::Printer{destination.name(), destination.deviceUri};
    m_session.ppd = ppd;
}

void PanelHost::willChangePPDOptionKeyValuePpdChoice(const QString &keyword, const QVariant &)
{
    Q_EMIT changeAnnounced(keyword);
}

void PanelHost::panelFailed(const QString &, const QString &reason)
{
    Q_EMIT failed(reason);
}

} // namespace host
