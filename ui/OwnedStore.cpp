#include "ui/OwnedStore.h"

BlogViewModel *OwnedStore::viewModel()
{
    if (!m_viewModel)
        m_viewModel = BlogViewModel::create();
    return m_viewModel.get();
}
