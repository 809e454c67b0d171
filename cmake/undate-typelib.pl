#!/usr/bin/perl
# Replaces the two places where the IDL compiler writes the time of its run into a type library, a text and the number
# behind it, so that the same sources give the same bytes. usage: undate-typelib.pl FILE
use strict;
use warnings;

local ($/, $^I, @ARGV) = (undef, '', @ARGV);
while (my $library = <>) {
    $library =~ s/( at )\w{3} \w{3} [ \d]\d [\d:]{8} \d{4}(\nWW\x13\x00).{4}/$1Thu Jan  1 00:00:00 1970$2\0\0\0\0/s
        or die "no time found in the type library\n";
    print $library;
}
