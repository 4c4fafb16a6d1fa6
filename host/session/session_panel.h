// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/print_dialog.h"

#include <QSet>
#include <QStringList>
#include <QVariantMap>

#include <memory>

namespace host {

// A panel of a session, the PPD options that it handles, and its state.
struct SessionPanel
{
    std::unique_ptr<platform::PrintDialogPanel> panel;
    QStringList keywords;
    QSet<QString> touched;  // set by the panel itself before it was restored
    QVariantMap keyValues;  // last known values of the keys that can be set, since it was restored
    bool announced = false; // shows the choices of its options, without having been restored
    bool restored = false;

    bool followsChoices() const { return announced || restored; }
};

} // namespace host
