// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QString>

class QWidget;

namespace platform {

// Implemented as well by a panel that has help of its own.
class KELMAR_PLATFORM_EXPORT PanelHelp
{
public:
    virtual ~PanelHelp();
    // A short page of Markdown without images, in the user's language; null where there is none. Links name
    // other pages, as in "summary.md", and nothing else.
    virtual QString helpText() = 0;
};

// Implemented as well by a panel that shows one of several views at a time.
class KELMAR_PLATFORM_EXPORT PanelViews
{
public:
    virtual ~PanelViews();
    // Whether the user of this dialog can come to the view that a control is in.
    virtual bool offersViewOf(const QWidget *control) = 0;
    // Shows the view that a control of the panel is in, at once and in its place. Does nothing where that
    // view is shown already, and for what is in none.
    virtual void showViewOf(QWidget *control) = 0;
};

} // namespace platform
