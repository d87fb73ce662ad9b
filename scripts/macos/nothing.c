// SPDX-License-Identifier: MIT
// What a stand-in for a library consists of.
int lumaris_stand_in;
