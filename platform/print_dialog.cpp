// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/print_dialog.h"

#include "platform/panel_extras.h"

namespace platform {

const QString printDialogPanelType = QStringLiteral("BDB091F4-E57F-11D3-B5CC-0050E4603277");

PrintDialogHost::~PrintDialogHost() = default;
ConstraintResolvingHost::~ConstraintResolvingHost() = default;
BlockingWorkHost::~BlockingWorkHost() = default;
PanelProblemHost::~PanelProblemHost() = default;
PrintDialogPanel::~PrintDialogPanel() = default;
PanelHelp::~PanelHelp() = default;
PanelViews::~PanelViews() = default;
PrintDialogExtension::~PrintDialogExtension() = default;

BlockingWork::BlockingWork(PrintDialogHost *host, const QString &what)
    : m_host(dynamic_cast<BlockingWorkHost *>(host))
{
    if (m_host)
        m_host->willBlock(what);
}

BlockingWork::~BlockingWork()
{
    if (m_host)
        m_host->didBlock();
}

} // namespace platform
