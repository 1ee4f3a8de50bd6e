#!/usr/bin/env python3
"""The changes that are made to a source are those that its author could have made, and no others."""

import unittest

from mutations import mutations_of


def changes(source: str) -> set[tuple[str, str]]:
    """What is replaced, and by what."""
    return {(source[mutation.start:mutation.end], mutation.replacement) for mutation in mutations_of(source)}


def in_function(statements: str) -> str:
    return "void f()\n{\n    " + statements + "\n}\n"


class Operators(unittest.TestCase):
    def test_binary_operators_are_exchanged(self):
        self.assertIn(("&&", "||"), changes(in_function("g(a && b);")))
        self.assertIn(("==", "!="), changes(in_function("g(a == b);")))
        self.assertIn(("+", "-"), changes(in_function("g(a + b);")))
        self.assertIn(("<<", ">>"), changes(in_function("g(a << b);")))

    def test_comparisons_are_moved_by_one_and_turned_round(self):
        self.assertLessEqual({("<", "<="), ("<", ">=")}, changes(in_function("g(a < b);")))

    def test_steps_go_the_other_way(self):
        self.assertIn(("++", "--"), changes(in_function("++i;")))

    def test_negations_are_removed(self):
        self.assertIn(("!", ""), changes(in_function("g(!a);")))
        self.assertIn(("-", ""), changes(in_function("g(-a);")))

    def test_brackets_of_templates_references_and_pointers_are_left_alone(self):
        source = "template <typename T>\nstd::vector<std::vector<T>> f(const T &a, T &&b, const T *c);\n"
        self.assertEqual(changes(source), set())

    def test_arrows_and_scopes_are_left_alone(self):
        self.assertEqual(changes(in_function("auto a = b->c;")), set())

    def test_an_operator_at_a_line_s_begin_is_one(self):
        self.assertIn(("&&", "||"), changes(in_function("return a\n        && b;")))


class Constants(unittest.TestCase):
    def test_integers_are_moved_by_one(self):
        self.assertEqual(changes("constexpr int a = 86'400;\n"), {("86'400", "86401"), ("86'400", "86399")})
        self.assertEqual(changes("constexpr int a = 0x7f;\n"), {("0x7f", "0x80"), ("0x7f", "0x7e")})

    def test_other_numbers_are_doubled_and_halved(self):
        self.assertEqual(changes("constexpr double a = 1e-4;\n"), {("1e-4", "0.0002"), ("1e-4", "5e-05")})

    def test_truths_are_turned_round(self):
        self.assertEqual(changes("bool a = true;\nbool b = false;\n"), {("true", "false"), ("false", "true")})

    def test_texts_and_characters_become_others(self):
        self.assertEqual(changes('auto a = "b";\n'), {('"b"', '"bx"')})
        self.assertEqual(changes('auto a = R"({"b":)";\n'), {('R"({"b":)"', 'R"({"b":x)"')})
        self.assertEqual(changes("auto a = u'/';\n"), {("u'/'", "u'y'")})
        self.assertEqual(changes(r"auto a = '\n';" "\n"), {(r"'\n'", "'x'")})

    def test_what_is_no_code_is_left_alone(self):
        self.assertEqual(changes('#pragma once\n#include "a/b.h"\n// 1 + 1\n/* "a" */\n'), set())
        self.assertEqual(changes('static_assert(sizeof(a) == sizeof(b), "why");\n'), {("==", "!=")})


class Statements(unittest.TestCase):
    def test_calls_are_removed(self):
        self.assertEqual(changes(in_function("g();")), {("g();", ";")})
        self.assertEqual(changes(in_function("emit changed();")), {("emit changed();", ";")})

    def test_assignments_are_removed(self):
        self.assertEqual(changes(in_function("a = b;")), {("a = b;", ";")})

    def test_declarations_are_kept(self):
        self.assertEqual(changes(in_function("const auto a = g();")), set())
        self.assertEqual(changes(in_function("std::optional<QString> a;")), set())
        self.assertEqual(changes(in_function("const T *a = b;")), set())

    def test_a_controlled_statement_is_removed_alone(self):
        self.assertEqual(changes(in_function("if (a == b)\n        g();\n    else\n        h();")),
                         {("==", "!="), ("g();", ";"), ("h();", ";")})

    def test_statements_of_a_function_within_a_call_are_removed_too(self):
        removed = {old for old, new in changes(in_function("each([](int a) { g(a); });")) if new == ";"}
        self.assertEqual(removed, {"g(a);", "each([](int a) { g(a); });"})

    def test_members_of_a_class_are_no_statements(self):
        self.assertEqual(changes("class A\n{\npublic:\n    int f() const;\n    B m_b;\n};\n"), set())

    def test_results_become_what_is_there_without_one(self):
        self.assertEqual(changes(in_function("return a;")), {("return a;", "return {};")})
        self.assertEqual(changes(in_function("return std::nullopt;")), set())
        self.assertEqual(changes(in_function("return {a};")), {("return {a};", "return {};")})

    def test_an_early_return_is_removed_but_not_the_last(self):
        self.assertEqual(changes(in_function("if (a == b)\n        return std::nullopt;\n    return {};")),
                         {("==", "!="), ("return std::nullopt;", ";")})

    def test_conditions_are_negated_unless_an_operator_of_theirs_is_changed(self):
        self.assertIn(("a.b()", "!(a.b())"), changes(in_function("if (a.b())\n        g();")))
        self.assertNotIn(("a == b", "!(a == b)"), changes(in_function("if (a == b)\n        g();")))
        self.assertIn(("a.b()", "!(a.b())"), changes(in_function("if (const auto a = g(); a.b())\n        h();")))

    def test_an_early_end_of_a_loop_or_a_case_is_removed(self):
        removed = {old for old, new in changes(in_function("switch (a) {\n    case b:\n        g();\n        break;\n"
                                                           "    }")) if new == ";"}
        self.assertEqual(removed, {"g();", "break;"})


class Order(unittest.TestCase):
    def test_a_mutation_replaces_its_own_characters_alone(self):
        source = in_function("g(a + b, c + d);")
        mutants = [mutation.of(source) for mutation in mutations_of(source) if mutation.replacement == "-"]
        self.assertEqual(mutants, [in_function("g(a - b, c + d);"), in_function("g(a + b, c - d);")])


if __name__ == "__main__":
    unittest.main()
