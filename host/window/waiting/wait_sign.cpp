// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/waiting/wait_sign.h"

#include "host/window/look/announced.h"
#include "host/window/look/dialog_button.h"
#include "host/window/look/explanations.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>

#include <utility>

namespace host {

namespace {

constexpr int barWidth = 72; // pixels

// The labels are announced, not the sign, whose name a screen reader repeats when its button gets the focus.
QLabel *announcedLabel(QWidget *parent)
{
    auto *label = new QLabel(parent);
    makeAnnounced(label);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

WaitSign::WaitSign(QWidget *parent)
    : QWidget(parent), m_text(announcedLabel(this)), m_note(announcedLabel(this)),
      m_bar(new QProgressBar(this)), m_stop(new DialogButton(tr("Do &Not Wait"), this))
{
    m_bar->setRange(0, 0); // indeterminate
    m_bar->setTextVisible(false);
    m_bar->setFixedWidth(barWidth);
    m_bar->setAccessibleName(tr("Progress"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(10);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(m_text);
    texts->addWidget(m_note);
    row->addLayout(texts, 1);
    row->addWidget(m_bar);
    row->addWidget(m_stop);
    m_note->hide();
    m_bar->hide();
    m_stop->hide();
    connect(m_stop, &QPushButton::clicked, this, &WaitSign::stopped);
}

WaitSign::~WaitSign()
{
    if (m_isShowing)
        QApplication::restoreOverrideCursor();
}

void WaitSign::begin(const QString &what)
{
    if (!std::exchange(m_isShowing, true))
        QApplication::setOverrideCursor(Qt::BusyCursor);
    m_text->setText(what);
    m_bar->hide();
    m_stop->hide();
}

// The text is announced here and not in begin(), so that short waits are not announced.
void WaitSign::showMoving()
{
    m_bar->show();
    announce(m_text, m_text->text());
}

void WaitSign::offerStop()
{
    m_stop->setWhatsThis(explanationOf(QStringLiteral("give-up")));
    m_stop->show();
    showMoving();
}

void WaitSign::addNote(const QString &note)
{
    m_note->setText(note);
    announce(m_note, note);
    m_note->show();
}

void WaitSign::end()
{
    if (std::exchange(m_isShowing, false))
        QApplication::restoreOverrideCursor();
    m_text->clear();
    m_text->setAccessibleName(QString());
    m_note->hide();
    m_bar->hide();
    m_stop->hide();
}

} // namespace host
