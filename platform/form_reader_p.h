// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/layout_loader.h"

class QFile;

namespace platform {

// The only function of libkelmar-forms.so: builds a widget from an open Designer file. Null with a message on
// failure; the caller owns the widget. The library is loaded with the first such file, since it depends on
// Qt's form loader, and that on OpenGL. Compiled forms need neither.
using ReadForm = QWidget *(*)(QFile *file, QString *problem);
inline constexpr const char *readFormName = "kelmarReadForm";

// Null if no widget of this name is registered.
KELMAR_PLATFORM_EXPORT WidgetFactory layoutWidgetFactory(const QString &className);

} // namespace platform
