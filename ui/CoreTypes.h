#pragma once

#include "model/BlogPost.h"
#include "model/BlogViewModel.h"

#include <QtQml/qqml.h>

// The core's types under their names in QML. The core itself knows nothing of QML.

struct BlogPostValue
{
    Q_GADGET
    QML_FOREIGN(BlogPost)
    QML_VALUE_TYPE(blogPost)
};

class BlogViewModelType
{
    Q_GADGET
    QML_FOREIGN(BlogViewModel)
    QML_NAMED_ELEMENT(BlogViewModel)
    QML_UNCREATABLE("A store is shared: an OwnedStore makes one.")
};
