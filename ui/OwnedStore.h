#pragma once

#include "model/BlogViewModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Owns the one store of a window. The store is made, and so loaded from disk, when it is first
/// asked for.
class OwnedStore : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(BlogViewModel *viewModel READ viewModel CONSTANT)

public:
    using QObject::QObject;

    BlogViewModel *viewModel();

private:
    std::shared_ptr<BlogViewModel> m_viewModel;
};
