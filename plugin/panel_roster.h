// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace platform {
class PrintDialogPanel;
}
class QVPDEManager_M880;

// A panel class of this build, found by its name at run time.
struct PanelClass
{
    QString className;
    // Makes a panel for one dialog; null when the class declines. May raise platform::Exception.
    std::function<std::unique_ptr<platform::PrintDialogPanel>(std::shared_ptr<QVPDEManager_M880>)>
        pdeWithManager;
};

// The panel classes that registered themselves, in a process-wide register. Registration happens while the
// code is loaded, before any dialog; a class of the same name replaces the earlier one.
class PanelRoster
{
public:
    // The panel names tried for every printer, in the order of the dialog.
    static const QStringList &panelNames();
    // "QVPDE" + panel name + "_M880".
    static QString classNameForPanel(const QString &panelName);

    static void registerClass(PanelClass panelClass);
    // For a class that goes away again. Nothing happens when it is not registered.
    static void unregisterClass(const QString &className);
    // Null when this build has no class of that name. Valid until the register changes.
    static const PanelClass *classNamed(const QString &className);
};

// Registers panel class T under its name. Put one in the panel's source file:
//     static const PanelRegistration<QVPDEPrintMode_M880>
//     registration(QStringLiteral("QVPDEPrintMode_M880"));
template <typename T>
struct PanelRegistration
{
    explicit PanelRegistration(const QString &className)
    {
        PanelRoster::registerClass({className, [](std::shared_ptr<QVPDEManager_M880> manager) {
                                        return T::template pdeWithManager<T>(std::move(manager));
                                    }});
    }
};
