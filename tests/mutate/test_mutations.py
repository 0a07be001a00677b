"""The mutations themselves: what is changed, and what is left alone."""

import random

import mutations
import runner


def changes(source):
    return {(found.kind, found.apply(source)) for found in mutations.find("a.cpp", source)}


def test_operators_between_blanks_are_changed():
    assert ("operator", "x = a - b;") in changes("x = a + b;")
    assert ("operator", "x = a <= b;") in changes("x = a < b;")
    assert ("operator", "x = a || b;") in changes("x = a && b;")
    assert ("operator", "x -= b;") in changes("x += b;")
    assert ("operator", "x = a / b;") in changes("x = a % b;")


def test_templates_references_and_pointers_are_not_operators():
    assert changes("std::vector<int> f(T&& a, const B* b);") == set()


def test_comments_and_preprocessor_lines_are_left_alone():
    assert changes("// a + b is 1\n#include \"x.h\"\n#define A 3\n/* 5 < 6 */\n") == set()


def test_constants_are_changed():
    assert changes("int x{41};") == {("constant", "int x{42};")}
    assert changes("auto x = 0x2Fu;") == {("constant", "auto x = 0x30u;")}
    assert changes("auto x = 2.5;") == {("constant", "auto x = 5.0;")}
    assert changes("bool x{true};") == {("constant", "bool x{false};")}
    assert changes('auto x = "a";') == {("text", 'auto x = "a~";')}
    assert changes('auto x = "";') == {("text", 'auto x = "~";')}
    assert changes("auto x = 'a';") == {("text", "auto x = '~';")}


def test_a_digit_within_a_name_is_no_constant():
    assert changes("int16_t x1 = Option3;") == set()


def test_steps_and_negations_are_changed():
    assert ("step", "--n;") in changes("++n;")
    assert ("not", "return done;") in changes("return !done;")


def test_conditions_are_turned_round():
    assert ("condition", "if (!(a(b))) c = d;") in changes("if (a(b)) c = d;")
    assert ("condition", "while (!(x)) {}") in changes("while (x) {}")


def test_a_condition_that_declares_something_is_left_alone():
    assert changes("if (const auto x = f()) y = z;") == set()


def test_a_statement_that_is_one_call_goes():
    source = "void f() {\n  window.Show(a,\n              b);\n  x = g();\n  return h();\n}\n"
    assert changes(source) == {("call", "void f() {\n  ;\n  x = g();\n  return h();\n}\n")}
    assert ("call", "if (a) ;") in changes("if (a) b();")


def test_making_room_beforehand_is_left_alone():
    assert changes("void f() {\n  names.reserve(a);\n}\n") == set()


def test_a_declaration_is_no_call():
    assert changes("void f() {\n  std::string text(other);\n}\n") == set()


def test_the_choice_is_the_same_for_the_same_seed_and_spreads_over_the_rooms():
    rooms = {"a": list(range(100)), "b": list(range(300)), "c": [1, 2, 3]}
    first, _ = mutations.choose(rooms, 60, 4, random.Random(7))
    again, _ = mutations.choose(rooms, 60, 4, random.Random(7))
    other, _ = mutations.choose(rooms, 60, 4, random.Random(8))
    assert first == again != other
    assert len(first["a"]) == 16 and len(first["b"]) == 40 and len(first["c"]) == 3


def test_the_changed_object_stands_before_the_libraries():
    command = ["c++", "-O0", "t/a_test.o", "-o", "portable_tests", "../liba.a", "-lgtest"]
    assert runner.link_with(command, "m.o", "m") == [
        "c++", "-O0", "t/a_test.o", "-o", "m", "m.o", "../liba.a", "-lgtest",
        "-Wl,--allow-multiple-definition"]


def test_the_test_that_noticed_is_found_in_the_output():
    output = "[ RUN      ] A.B\nx\n[  FAILED  ] A.B (0 ms)\n[  FAILED  ] A.C\n"
    assert runner.first_failure(output) == "A.B"
    assert runner.first_failure("[ RUN      ] A.B\nterminate called") == "A.B (ended)"
