// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/text_field.h"

#include <QFocusEvent>
#include <QHash>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QValidator>

#include <utility>

namespace platform {

const QString NSFieldEditor = QStringLiteral("NSFieldEditor");

namespace {

using Delegates = QHash<QString, std::shared_ptr<TextFieldDelegate>>;
Q_GLOBAL_STATIC(Delegates, delegates)

} // namespace

// Rejects input that the delegate would change. When the line edit then reverts the change, its undo history
// stays intact, which it would not if another text were set.
class TextField::Gate : public QValidator
{
public:
    explicit Gate(TextField *field) : QValidator(field), m_field(field) {}
    State validate(QString &input, int &cursor) const override
    {
        if (!m_field->m_delegate || m_field->m_delegate->acceptsText(input))
            return Acceptable;
        // Changes that arrive without an event of the field, for example from its menu, are handled later.
        if (!std::exchange(m_field->m_rejected, Rejected{input, cursor}))
            QMetaObject::invokeMethod(m_field, &TextField::handleRejected, Qt::QueuedConnection);
        return Invalid;
    }
    // A text that was set by a program may be committed unchanged.
    void fixup(QString &) const override {}

private:
    TextField *m_field;
};

TextFieldDelegate::~TextFieldDelegate() = default;

bool TextFieldDelegate::acceptsText(const QString &) const
{
    return true;
}

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
    setValidator(new Gate(this));
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
    // A commit runs code of a panel, which may delete other fields.
    const QPointer<QWidget> responder(window->focusWidget());
    auto *focused = qobject_cast<TextField *>(responder);
    const bool wasEdited = focused && focused->isEditing();
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
    // The delegate may have kept the field in editing.
    if (wasEdited && responder && !focused->isEditing())
        responder->clearFocus();
}

void TextField::setColumns(int columns)
{
    m_columns = columns;
    updateGeometry();
}

QSize TextField::sizeHint() const
{
    return m_columns > 0 ? minimumSizeHint() : QLineEdit::sizeHint();
}

QSize TextField::minimumSizeHint() const
{
    QSize size = QLineEdit::minimumSizeHint();
    const QFontMetrics metrics = fontMetrics();
    if (m_columns > 0) // replaces the width of the one character that a line edit always includes
        size.rwidth() += m_columns * metrics.horizontalAdvance(u'0') - metrics.maxWidth();
    return size;
}

bool TextField::event(QEvent *event)
{
    const QPointer<TextField> self(this); // a commit may delete the field
    const bool handled = QLineEdit::event(event);
    if (self)
        handleRejected();
    return handled;
}

void TextField::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && m_editing) {
        // Do not pass it to the dialog's default button, so that the user first sees the resulting text.
        event->accept();
        endEditing();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void TextField::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    m_selectsOnRelease = event->reason() == Qt::MouseFocusReason;
}

void TextField::mouseReleaseEvent(QMouseEvent *event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(m_selectsOnRelease, false) && !hasSelectedText())
        selectAll();
}

void TextField::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    // Not when a context menu opens or another window is activated, since the user will return to the field.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        endEditing();
}

void TextField::handleRejected()
{
    const auto rejected = std::exchange(m_rejected, std::nullopt);
    if (!rejected || !m_delegate || rejected->text == text())
        return;
    QLineEdit editor;
    editor.setText(rejected->text);
    editor.setCursorPosition(rejected->cursor);
    m_editing = true;
    m_delegate->controlTextDidChange(this, {{NSFieldEditor, QVariant::fromValue<QObject *>(&editor)}});
    replaceByUser(editor.text(), editor.cursorPosition());
}

// Replaces the differing part as if the user had typed it, so that it can be undone in one step.
void TextField::replaceByUser(const QString &wanted, int cursor)
{
    const QString present = text();
    const qsizetype shorter = qMin(present.size(), wanted.size());
    qsizetype head = 0;
    while (head < shorter && present[head] == wanted[head])
        ++head;
    qsizetype tail = 0;
    while (tail < shorter - head && present[present.size() - 1 - tail] == wanted[wanted.size() - 1 - tail])
        ++tail;
    if (present != wanted) {
        setSelection(int(head), int(present.size() - head - tail));
        insert(wanted.sliced(head, wanted.size() - head - tail));
    }
    setCursorPosition(cursor);
}

void TextField::userEdited()
{
    m_editing = true;
    m_rejected.reset(); // an accepted edit makes earlier rejected input obsolete
    if (m_delegate)
        m_delegate->controlTextDidChange(this, {{NSFieldEditor, QVariant::fromValue<QObject *>(this)}});
}

} // namespace platform
