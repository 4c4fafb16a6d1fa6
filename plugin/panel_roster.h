// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <string_view>
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
    static constexpr auto names = std::to_array<std::string_view>(
        {"PrintMode", "ColorSettings1", "ColorSettings2", "DocStore", "Fax", "Watermark"});
    static const QStringList &panelNames();
    // "QVPDE" + panel name + "_M880".
    static QString classNameForPanel(const QString &panelName);

    static void registerClass(PanelClass panelClass);
    // For a class that goes away again. Nothing happens when it is not registered.
    static void unregisterClass(const QString &className);
    // Null when this build has no class of that name. Valid until the register changes.
    static const PanelClass *classNamed(const QString &className);
};

void theRosterHasNoPanelOfThatName(); // what the compiler says of a name that is not in PanelRoster::names

// A name of the roster; no other compiles.
struct RosterName
{
    consteval RosterName(const char *name) : text(name)
    {
        if (std::find(PanelRoster::names.begin(), PanelRoster::names.end(), text) == PanelRoster::names.end())
            theRosterHasNoPanelOfThatName();
    }
    std::string_view text;
};

// Registers panel class T, "QVPDE" + panel name + "_M880". Put one in the panel's source file:
//     const PanelRegistration<QVPDEPrintMode_M880> registration("PrintMode");
template <typename T>
struct PanelRegistration
{
    explicit PanelRegistration(RosterName name)
    {
        const QString panel = QString::fromLatin1(name.text.data(), static_cast<qsizetype>(name.text.size()));
        const QString className = PanelRoster::classNameForPanel(panel);
        PanelRoster::registerClass({className, [](std::shared_ptr<QVPDEManager_M880> manager) {
                                        return T::template pdeWithManager<T>(std::move(manager));
                                    }});
    }
};
