// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "panelkit/panel_base.h"
#include "plugin/manager.h"
#include "ppd/ppd_model.h"
#include "tests/support/inline_ppd.h"
#include "tests/support/recording_host.h"

#include <memory>

// One dialog for a PPD that is defined in the test.
struct SampleDialog
{
    explicit SampleDialog(const QByteArray &ppdBody, std::shared_ptr<platform::Bundle> bundle = nullptr)
        : ppd(ppdBody), host(ppd.get()), manager(std::make_shared<QVPDEManager_M880>())
    {
        manager->setBundle(std::move(bundle));
        manager->setHost(&host);
        manager->setPpd(QVPPD_M880::ppdWithHost(&host));
        manager->setUseConstraintHandling(true);
    }

    InlinePpd ppd;
    ResolvingRecordingHost host;
    std::shared_ptr<QVPDEManager_M880> manager;
};

// A panel with given options and no user interface.
class SamplePanel : public QVPDE_M880
{
public:
    SamplePanel(const SampleDialog &dialog, const QStringList &options)
    {
        setSupportedPPDOptionKeys(options);
        if (!initWithManager(dialog.manager))
            qFatal("the panel declines");
    }

protected:
    SamplePanel() = default;
};
