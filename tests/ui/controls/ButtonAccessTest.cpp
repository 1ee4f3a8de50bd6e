#include "ui/ButtonAccess.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace {

/// How many wait for a signal of an object.
class Receivers : public QObject
{
public:
    static int of(const QObject *object, const char *signal)
    {
        return (object->*(&Receivers::receivers))(signal);
    }
};

class ButtonAccessTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { installButtonAccess(); }

    void SetUp() override
    {
        QQmlComponent component(&engine);
        component.setData("import Tavlo\nPushButton { text: \"Press\" }", QUrl());
        button.reset(qobject_cast<QQuickItem *>(component.create()));
        ASSERT_NE(button, nullptr) << qPrintable(component.errorString());
        button->setParentItem(window.contentItem());
    }

    QAccessibleInterface *access() const
    {
        return QAccessible::queryAccessibleInterface(button.get());
    }

    QQmlEngine engine;
    QQuickWindow window;
    std::unique_ptr<QQuickItem> button;
};

TEST_F(ButtonAccessTest, knowsAButtonByTheToolkitsOwnClasses)
{
    EXPECT_TRUE(button->inherits("QQuickAbstractButton"));
    const QObjectList children = button->children();
    EXPECT_TRUE(std::any_of(children.cbegin(), children.cend(), [](const QObject *child) {
        return child->inherits("QQuickAccessibleAttached");
    }));
}

TEST_F(ButtonAccessTest, tellsRoleNameAndWhetherTheButtonIsDisabled)
{
    EXPECT_EQ(access()->role(), QAccessible::Button);
    EXPECT_EQ(access()->text(QAccessible::Name), QStringLiteral("Press"));
    EXPECT_FALSE(access()->state().disabled);
    button->setEnabled(false);
    EXPECT_TRUE(access()->state().disabled);
    EXPECT_TRUE(access()->actionInterface()->actionNames().isEmpty());
}

TEST_F(ButtonAccessTest, waitsForAChangeOnce_alsoAfterAssistiveToolsLeftAndCameBack)
{
    ASSERT_NE(access(), nullptr);
    const int receivers = Receivers::of(button.get(), SIGNAL(enabledChanged()));
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(access()));
    EXPECT_EQ(Receivers::of(button.get(), SIGNAL(enabledChanged())), receivers - 1);
    ASSERT_NE(access(), nullptr);
    EXPECT_EQ(Receivers::of(button.get(), SIGNAL(enabledChanged())), receivers);
}

} // namespace
