#pragma once

#include "model/BlogPost.h"
#include "model/RSSSettings.h"

/// A blog of so many posts, about 1 KB of JSON each, in scripts of one to four bytes a character.
/// The same at each call, ids included. Two posts are some hours apart, the newest first.
BlogPosts sampleBlog(qsizetype count);

RSSSettings sampleChannel();
