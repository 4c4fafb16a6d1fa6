// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/title_field.h"

#include "host/session/document_choice.h"
#include "host/window/look/explanations.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace host {

namespace {

constexpr int longestTitle = 255; // characters; names in the print protocol have at most 255 bytes

struct TitleField
{
    Q_DECLARE_TR_FUNCTIONS(TitleField)
};

} // namespace

void addTitleField(DocumentChoice *documents, QGridLayout *grid, QWidget *page)
{
    auto *field = new QLineEdit(documents->title(), page);
    field->setMaxLength(longestTitle);
    field->setCursorPosition(0);
    field->setWhatsThis(explanationOf(QStringLiteral("job-name")));
    QObject::connect(field, &QLineEdit::textEdited, documents, &DocumentChoice::setTitle);
    auto *label = new QLabel(TitleField::tr("Title:"), page);
    label->setBuddy(field);
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0, Qt::AlignTrailing | Qt::AlignVCenter);
    grid->addWidget(field, row, 1);
}

} // namespace host
