// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/text_field.h"

#include <QFocusEvent>
#include <QHash>
#include <QKeyEvent>
#include <QPointer>

namespace platform {

const QString NSFieldEditor = QStringLiteral("NSFieldEditor");

namespace {

using Delegates = QHash<QString, std::shared_ptr<TextFieldDelegate>>;
Q_GLOBAL_STATIC(Delegates, delegates)

} // namespace

TextFieldDelegate::~TextFieldDelegate() = default;

void TextFieldDelegate::setDelegateForName(std::shared_ptr<TextFieldDelegate> delegate, const QString &name)
{
    (*delegates)[name] = std::move(delegate);
}

std::shared_ptr<TextFieldDelegate> TextFieldDelegate::delegateForName(const QString &name)
{
    return delegates->value(name);
}

TextField::TextField(QWidget *parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textEdited, this, &TextField::userEdited);
}

TextField::~TextField() = default;

void TextField::setDelegate(std::shared_ptr<TextFieldDelegate> delegate)
{
    m_delegate = std::move(delegate);
}

void TextField::setStringValue(const QString &text)
{
    m_editing = false;
    m_stringValue = text;
    if (QLineEdit::text() != text)
        setText(text);
}

bool TextField::endEditing()
{
    if (!m_editing)
        return true;
    if (m_delegate && !m_delegate->controlTextShouldEndEditing(this, this))
        return false;
    m_editing = false;
    m_stringValue = text();
    Q_EMIT stringValueCommitted();
    return true;
}

void TextField::resignFirstResponder(QWidget *view)
{
    if (!view)
        return;
    const QPointer<QWidget> window(view->window());
    // A commit runs the code of a panel, which may do away with other fields.
    QList<QPointer<TextField>> fields;
    if (auto *field = qobject_cast<TextField *>(window))
        fields.append(field);
    const auto children = window->findChildren<TextField *>();
    for (TextField *field : children)
        fields.append(field);
    for (const QPointer<TextField> &field : fields) {
        if (field)
            field->endEditing();
    }
    QWidget *responder = window ? window->focusWidget() : nullptr;
    if (!responder)
        return;
    auto *field = qobject_cast<TextField *>(responder);
    if (!field || !field->isEditing()) // its delegate may have kept it in editing
        responder->clearFocus();
}

void TextField::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && !endEditing()) {
        event->accept(); // a dialog's default button must not be clicked for a text that is not finished
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void TextField::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) // its context menu
        endEditing();
}

void TextField::userEdited()
{
    m_editing = true;
    if (m_delegate)
        m_delegate->controlTextDidChange(this, {{NSFieldEditor, QVariant::fromValue<QObject *>(this)}});
}

} // namespace platform
