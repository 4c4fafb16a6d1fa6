// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

class Bundle;

// A Designer form with its texts translated by the bundle, in the context of the form's class. Done on the
// form and not by Qt while it builds the widgets, because Qt asks the application's translators only, and a
// bundle's texts are no business of the application. A null array with a message when the form does not
// parse.
QByteArray translatedForm(const QByteArray &form, const Bundle &bundle, QString *error);

} // namespace platform
