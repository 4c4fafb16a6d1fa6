// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QString>

class QWidget;

namespace platform {

// An optional interface of a panel that has a help page.
class KELMAR_PLATFORM_EXPORT PanelHelp
{
public:
    virtual ~PanelHelp();
    // A short page of Markdown without images, in the user's language; null if there is none. Links must name
    // other pages, such as "summary.md".
    virtual QString helpText() = 0;
};

// An optional interface of a panel that shows one of several views at a time.
class KELMAR_PLATFORM_EXPORT PanelViews
{
public:
    virtual ~PanelViews();
    // Whether the user of this dialog can switch to the view that contains a control.
    virtual bool offersViewOf(const QWidget *control) = 0;
    // Switches at once to the view that contains a control of the panel. Does nothing if that view is already
    // shown or the control is in no view.
    virtual void showViewOf(QWidget *control) = 0;
};

} // namespace platform
