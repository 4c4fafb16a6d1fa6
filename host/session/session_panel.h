// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/print_dialog.h"

#include <QSet>
#include <QStringList>
#include <QVariantMap>

#include <memory>

namespace host {

// A panel of a session, the PPD options that it handles, and how far the two have got with each other.
struct SessionPanel
{
    std::unique_ptr<platform::PrintDialogPanel> panel;
    QStringList keywords;
    QSet<QString> touched;  // set by the panel's own code before it was restored
    QVariantMap keyValues;  // of the keys that can be set, as last looked at; since it was restored
    bool announced = false; // shows its options' choices, without having been restored
    bool restored = false;

    bool followsChoices() const { return announced || restored; }
};

} // namespace host
