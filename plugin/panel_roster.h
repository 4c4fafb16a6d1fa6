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

// A panel class of this build, looked up by name at run time.
struct PanelClass
{
    QString className;
    // Creates a panel for one dialog; null if the class declines. May raise platform::Exception.
    std::function<std::unique_ptr<platform::PrintDialogPanel>(std::shared_ptr<QVPDEManager_M880>)>
        pdeWithManager;
};

// The process-wide registry of panel classes. Classes register themselves while the code is loaded, before
// any dialog. A class of the same name replaces an earlier one.
class PanelRoster
{
public:
    // The panels that are created for every printer, in the order of the dialog.
    static constexpr auto names = std::to_array<std::string_view>(
        {"PrintMode", "ColorSettings1", "ColorSettings2", "DocStore", "Fax", "Watermark"});
    static const QStringList &panelNames();
    // "QVPDE" + panel name + "_M880".
    static QString classNameForPanel(const QString &panelName);

    static void registerClass(PanelClass panelClass);
    // Removes a class. Does nothing if it is not registered.
    static void unregisterClass(const QString &className);
    // Null if this build has no class of that name. Valid until the registry changes.
    static const PanelClass *classNamed(const QString &className);
};

// Not defined. RosterName calls it for a name that is not in PanelRoster::names: such a call is no constant
// expression, and the compiler's error message contains the name of this function.
void theRosterHasNoPanelOfThatName();

// A name of the roster; other names do not compile.
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
