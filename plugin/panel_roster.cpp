// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "plugin/panel_roster.h"

#include "platform/print_dialog.h"

#include <map>

namespace {

// Created on first use, because classes register while the code is loaded, in undefined order.
std::map<QString, PanelClass> &registeredClasses()
{
    static std::map<QString, PanelClass> classes;
    return classes;
}

} // namespace

const QStringList &PanelRoster::panelNames()
{
    static const QStringList list = [] {
        QStringList texts;
        for (const std::string_view name : names)
            texts.append(QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())));
        return texts;
    }();
    return list;
}

QString PanelRoster::classNameForPanel(const QString &panelName)
{
    return QStringLiteral("QVPDE%1_%2").arg(panelName, QStringLiteral("M880"));
}

void PanelRoster::registerClass(PanelClass panelClass)
{
    const QString name = panelClass.className;
    registeredClasses().insert_or_assign(name, std::move(panelClass));
}

void PanelRoster::unregisterClass(const QString &className)
{
    registeredClasses().erase(className);
}

const PanelClass *PanelRoster::classNamed(const QString &className)
{
    const auto &classes = registeredClasses();
    const auto found = classes.find(className);
    return found == classes.end() ? nullptr : &found->second;
}
