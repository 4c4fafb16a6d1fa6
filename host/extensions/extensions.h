// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/extensions/protection.h"
#include "platform/print_dialog.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace host {

// The plug-in bundles of the program. Their Info.json is read on first use, their code only for a printer
// that they serve. Outlives every dialog, whose panels run that code.
class Extensions
{
public:
    // `bundleFolders` are the bundles themselves.
    explicit Extensions(QStringList bundleFolders);
    ~Extensions();
    Extensions(const Extensions &) = delete;
    Extensions &operator=(const Extensions &) = delete;

    // The *.bundle folders that belong to a program in this folder: next to it, then in ../lib/kelmar-print.
    static QStringList installedBundles(const QString &programFolder);

    // What the bundles that serve this model say of protection. Opens them, as the next one does.
    Protection protectionFor(const QString &modelName, QStringList *problems);
    // The panels of every bundle that serves the dialog's panel type and this model, in order. What goes
    // wrong with a bundle is told in `problems`, and the others go on.
    platform::PrintDialogPanels panelsFor(const QString &modelName, platform::PrintDialogHost *host,
                                          QStringList *problems);

private:
    struct Loaded
    {
        std::shared_ptr<platform::Bundle> bundle;
        platform::PrintDialogExtension *extension = nullptr; // null until its code is needed; the bundle's
    };
    void open(QStringList *problems);
    static bool serves(const Loaded &loaded, const QString &modelName);
    platform::PrintDialogExtension *principalObject(Loaded *loaded, QString *error);

    QStringList m_folders;
    bool m_opened = false;
    std::vector<Loaded> m_loaded;
};

} // namespace host
