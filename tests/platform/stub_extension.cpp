// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/bundle.h"
#include "platform/print_dialog.h"

#include <QObject>

// The smallest extension a host can load. It keeps its bundle, as real ones do.
class StubExtension : public QObject, public platform::PrintDialogExtension
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.kelmar.PrintDialogExtension/1.0")
    Q_INTERFACES(platform::PrintDialogExtension)
public:
    bool initWithBundle(std::shared_ptr<platform::Bundle> bundle) override
    {
        m_bundle = std::move(bundle);
        return true;
    }
    std::optional<platform::PrintDialogPanels>
    PDEPanelsForTypeWithHostInfo(const QString &type, platform::PrintDialogHost *) override
    {
        if (!m_bundle || type != m_bundle->infoValueForKey(platform::Bundle::panelTypeKey).toString())
            return std::nullopt;
        return platform::PrintDialogPanels();
    }

private:
    std::shared_ptr<platform::Bundle> m_bundle;
};

#include "stub_extension.moc"
