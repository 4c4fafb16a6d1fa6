// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "plugin/factory.h"

#include "platform/bundle.h"
#include "platform/exception.h"
#include "platform/logging.h"
#include "plugin/manager.h"
#include "plugin/panel_roster.h"
#include "ppd/ppd_model.h"
#include "ppd/version_info.h"

namespace {

std::shared_ptr<QVPDEManager_M880> managerForDialog(std::shared_ptr<platform::Bundle> bundle,
                                                    platform::PrintDialogHost *host)
{
    auto ppd = QVPPD_M880::ppdWithHost(host);
    auto manager = std::make_shared<QVPDEManager_M880>();
    const QString model = ppd ? ppd->modelname() : QString();
    manager->setBundle(std::move(bundle));
    manager->setHost(host);
    manager->setPpd(std::move(ppd));
    manager->setUseConstraintHandling(dynamic_cast<platform::ConstraintResolvingHost *>(host) != nullptr);
    manager->setCurrentModel(model);
    return manager;
}

} // namespace

QVPDEFactory_M880::QVPDEFactory_M880() = default;

QVPDEFactory_M880::~QVPDEFactory_M880()
{
    m_myself.reset();
    m_managerVersion.reset();
}

bool QVPDEFactory_M880::initWithBundle(std::shared_ptr<platform::Bundle> bundle)
{
    m_myself = std::move(bundle);
    m_managerVersion = QVPDEManager_M880::managerVersion();
    return true;
}

std::vector<PanelClass> QVPDEFactory_M880::loadablePDEs() const
{
    std::vector<PanelClass> classes;
    for (const QString &name : PanelRoster::panelNames()) {
        if (const PanelClass *found = PanelRoster::classNamed(PanelRoster::classNameForPanel(name)))
            classes.push_back(*found);
    }
    return classes;
}

std::optional<platform::PrintDialogPanels>
QVPDEFactory_M880::PDEPanelsForTypeWithHostInfo(const QString &type, platform::PrintDialogHost *host)
{
    if (type != platform::printDialogPanelType)
        return std::nullopt;

    const auto manager = managerForDialog(m_myself, host);
    platform::PrintDialogPanels panels;
    for (const PanelClass &panelClass : loadablePDEs()) {
        try {
            if (auto panel = panelClass.pdeWithManager(manager))
                panels.push_back(std::move(panel));
        } catch (const platform::Exception &exception) {
            qCWarning(lcPlugin).noquote().nospace()
                << '"' << panelClass.className << "\" was not loaded because an unexpected error occurred.";
            qCWarning(lcPlugin).noquote() << exception.description();
            if (auto *problems = dynamic_cast<platform::PanelProblemHost *>(host))
                problems->panelFailed(panelClass.className, exception.reason());
        }
    }
    return panels;
}
