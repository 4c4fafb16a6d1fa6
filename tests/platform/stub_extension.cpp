// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/print_dialog.h"

#include <QObject>

// A minimal extension without panels.
class StubExtension : public QObject, public platform::PrintDialogExtension
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.kelmar.PrintDialogExtension/1.0")
    Q_INTERFACES(platform::PrintDialogExtension)
public:
    bool initWithBundle(std::shared_ptr<platform::Bundle>) override { return true; }
    std::optional<platform::PrintDialogPanels>
    PDEPanelsForTypeWithHostInfo(const QString &, platform::PrintDialogHost *) override
    {
        return platform::PrintDialogPanels();
    }
};

#include "stub_extension.moc"
