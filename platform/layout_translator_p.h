// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QTranslator>

namespace platform {

class Bundle;

// Gives Qt's layout builder the texts of the bundle whose layout is being loaded, and is silent at any other
// time. Qt asks the application's translators only, so this one is installed, once and for good: it says that
// it is empty, so that no window is told of a change of language. Owned by the application.
class LayoutTranslator : public QTranslator
{
public:
    // Lends the texts of a bundle for the length of a scope.
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
