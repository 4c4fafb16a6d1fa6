// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/guide/guide_buttons.h"

#include "host/window/look/access_keys.h"
#include "host/window/look/dialog_button.h"
#include "host/window/look/explanations.h"

#include <QHBoxLayout>
#include <QKeySequence>

namespace host {

namespace {

QPushButton *guideButton(const QString &text, const QString &name, QKeySequence::StandardKey key,
                         QWidget *parent)
{
    auto *button = new DialogButton(text, parent);
    button->setMinimumWidth(0);
    button->setFocusPolicy(Qt::TabFocus);
    button->setProperty(AccessKeys::otherKeyProperty, true);
    button->setAccessibleName(name);
    button->setToolTip(GuideButtons::tr("%1 (%2)", "what a button does, and its key")
                           .arg(name, QKeySequence(key).toString(QKeySequence::NativeText)));
    return button;
}

} // namespace

GuideButtons::GuideButtons(QWidget *parent) : QWidget(parent)
{
    QPushButton *find = guideButton(tr("&Find…"), tr("Find a setting"), QKeySequence::Find, this);
    QPushButton *help = guideButton(tr("&Help"), tr("Help on this page"), QKeySequence::HelpContents, this);
    find->setWhatsThis(explanationOf(QStringLiteral("find")));
    help->setWhatsThis(explanationOf(QStringLiteral("help")));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    row->addWidget(find);
    row->addWidget(help);
    connect(find, &QPushButton::clicked, this, &GuideButtons::findWanted);
    connect(help, &QPushButton::clicked, this, &GuideButtons::helpWanted);
}

} // namespace host
