#include "ui/PostActions.h"

#include "model/NotificationCenter.h"

#include <algorithm>

void PostActions::edit(const QVariant &post) const
{
    if (post.metaType() == QMetaType::fromType<BlogPost>())
        NotificationCenter::defaultCenter()->post(editPost, post);
}

void PostActions::remove(BlogViewModel *viewModel, const QVariant &post) const
{
    if (!viewModel || post.metaType() != QMetaType::fromType<BlogPost>())
        return;
    const QUuid id = post.value<BlogPost>().id;
    const BlogPosts &posts = viewModel->posts();
    const auto found = std::find_if(posts.cbegin(), posts.cend(),
                                    [&id](const BlogPost &other) { return other.id == id; });
    if (found != posts.cend())
        viewModel->deletePost({found - posts.cbegin()});
}
