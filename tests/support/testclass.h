#pragma once

#include <QList>
#include <QTest>
#include <utility>

/// The test classes of a program that has several.
struct TestClasses
{
    using Run = int (*)(const QStringList &arguments);
    static inline QList<std::pair<QByteArray, Run>> all;
};

/// Adds a class to the program that it is linked into: `const TestClass<TextsTest> textsTest;`
template<class Test>
struct TestClass
{
    TestClass()
    {
        TestClasses::all.append({Test::staticMetaObject.className(), [](const QStringList &arguments) {
                                     Test test;
                                     return QTest::qExec(&test, arguments);
                                 }});
    }
};
