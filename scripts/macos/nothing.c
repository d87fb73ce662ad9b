// SPDX-License-Identifier: MIT
// The content of every stand-in for a library.
int lumaris_stand_in;
