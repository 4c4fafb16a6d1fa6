// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/layout_translator_p.h"

#include "platform/bundle.h"

#include <QCoreApplication>
#include <QPointer>

namespace platform {

LayoutTranslator *LayoutTranslator::installed()
{
    static QPointer<LayoutTranslator> translator;
    if (!translator) {
        translator = new LayoutTranslator(QCoreApplication::instance());
        QCoreApplication::installTranslator(translator);
    }
    return translator;
}

QString LayoutTranslator::translate(const char *context, const char *source, const char *disambiguation,
                                    int) const
{
    return m_bundle ? m_bundle->translate(context, source, disambiguation) : QString();
}

LayoutTranslator::Scope::Scope(const Bundle &bundle)
{
    installed()->m_bundle = &bundle;
}

LayoutTranslator::Scope::~Scope()
{
    installed()->m_bundle = nullptr;
}

} // namespace platform
