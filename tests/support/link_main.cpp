// SPDX-License-Identifier: GPL-3.0-or-later
// The program of a link check: the library linked with it is the test.
int main() { return 0; }
