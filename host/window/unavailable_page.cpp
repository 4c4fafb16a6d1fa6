// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/unavailable_page.h"

#include "host/window/look/dialog_button.h"
#include "host/window/look/explanations.h"
#include "host/window/look/foreign_text.h"
#include "host/window/look/status_glyph.h"

#include <QLabel>
#include <QVBoxLayout>

namespace host {

UnavailablePage::UnavailablePage(QWidget *parent)
    : QWidget(parent), m_reason(new QLabel(this)), m_retry(new DialogButton(tr("&Try Again"), this))
{
    m_reason->setTextFormat(Qt::PlainText);
    m_reason->setAlignment(Qt::AlignCenter);
    m_reason->setWordWrap(true);
    QFont large = m_reason->font();
    large.setPointSizeF(large.pointSizeF() * 1.2);
    m_reason->setFont(large);
    m_retry->setAutoDefault(false);
    m_retry->setMinimumWidth(96);
    auto *glyph = new StatusGlyph(48, this);
    glyph->setKind(StatusGlyph::Kind::Error);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(60, 24, 60, 24);
    column->setSpacing(16);
    column->addStretch(2);
    column->addWidget(glyph, 0, Qt::AlignHCenter);
    column->addWidget(m_reason);
    column->addWidget(m_retry, 0, Qt::AlignHCenter);
    column->addStretch(3);
    connect(m_retry, &QPushButton::clicked, this, &UnavailablePage::retryWanted);
}

void UnavailablePage::setReason(const QString &reason)
{
    m_reason->setText(wrappable(reason));
    setAccessibleName(reason);
    m_retry->setWhatsThis(explanationOf(QStringLiteral("try-again")));
}

} // namespace host
