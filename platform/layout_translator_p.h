// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QTranslator>

namespace platform {

class Bundle;

// Provides Qt's layout builder with the texts of the bundle whose layout is being loaded. Qt queries only the
// application's translators, so this one is installed permanently. It reports that it is empty, so that no
// window receives a language change event. Owned by the application.
class LayoutTranslator : public QTranslator
{
public:
    // Activates the texts of a bundle for the duration of a scope.
    class Scope
    {
    public:
        explicit Scope(const Bundle &bundle);
        ~Scope();
        Scope(const Scope &) = delete;
        Scope &operator=(const Scope &) = delete;
    };

    bool isEmpty() const override { return true; }
    QString translate(const char *context, const char *source, const char *disambiguation,
                      int n) const override;

private:
    using QTranslator::QTranslator;
    static LayoutTranslator *installed();

    const Bundle *m_bundle = nullptr;
};

} // namespace platform
