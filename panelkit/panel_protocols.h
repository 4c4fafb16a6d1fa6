// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/layout_loader.h"
#include "platform/print_dialog.h"

#include <QString>
#include <QStringList>

// The panel protocol inside the plug-in.
class QVCocoaPDE_M880 : public platform::PrintDialogPanel
{
public:
    virtual QStringList supportedPPDOptionKeys() = 0;
};

// An optional interface of a panel class whose layout is loaded by the base class.
class QVPDELoading_M880
{
public:
    virtual ~QVPDELoading_M880();
    // Name of the layout for a printer model; empty for a panel without a user interface.
    virtual QString nibNameForModel(const QString &model) const = 0;
    // The compiled form of the layout of this name; by default none.
    virtual platform::CompiledForm compiledForm(const QString &nibName) const;
};
