#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickTextDocument>
#include <QTextDocument>
#include <QtQml/qqmlregistration.h>

/// Keeps the characters of a text that is shown in a text area, which changes some of them on
/// their way in and out.
///
/// A text that the user has not changed, or has changed back, is given back as it was. In an
/// edited one each line end is a line feed, and all other characters are as they stand.
class VerbatimText : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY documentChanged)
    Q_PROPERTY(QString exactText READ exactText NOTIFY exactTextChanged)

public:
    using QObject::QObject;

    QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);

    /// The text with its exact characters. It is made when it is asked for, and kept until the
    /// document changes.
    QString exactText() const;

    /// Takes note that the document, as it stands, shows `source`.
    Q_INVOKABLE void remember(const QString &source);

signals:
    void documentChanged();
    void exactTextChanged();

private:
    QString rawText() const;
    void forgetExactText();

    QPointer<QQuickTextDocument> m_document;
    QPointer<QTextDocument> m_text;
    QString m_source;
    QString m_rawSource;
    mutable QString m_exactText;
    mutable bool m_exactTextKnown = true;
};
