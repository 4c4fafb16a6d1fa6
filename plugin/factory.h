// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/print_dialog.h"

#include <QObject>

#include <memory>
#include <vector>

struct PanelClass;
class QVVersionInfo_M880;

// The root component of the bundle. The host creates it once when the bundle is loaded, and asks it for the
// panels of each dialog. It holds no state of a dialog.
class QVPDEFactory_M880 : public QObject, public platform::PrintDialogExtension
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.kelmar.PrintDialogExtension/1.0")
    Q_INTERFACES(platform::PrintDialogExtension)
public:
    QVPDEFactory_M880();
    ~QVPDEFactory_M880() override;

    // Always true.
    bool initWithBundle(std::shared_ptr<platform::Bundle> bundle) override;
    // The panel classes of this build in the order of the roster.
    std::vector<PanelClass> loadablePDEs() const;
    // Null unless `type` is the print-dialog panel type. A panel class that declines is skipped; one that
    // raises platform::Exception is logged and skipped; other exceptions are passed on. A null host is a
    // dialog without PPD and constraint handling.
    std::optional<platform::PrintDialogPanels>
    PDEPanelsForTypeWithHostInfo(const QString &type, platform::PrintDialogHost *host) override;

private:
    std::shared_ptr<const QVVersionInfo_M880> m_managerVersion;
    std::shared_ptr<platform::Bundle> m_myself;
};
