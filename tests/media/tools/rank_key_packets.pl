# Reads "pts,flags" of a stream's packets and prints the places of the key packets in the order of
# showing. Fails, printing nothing, when packets without a time leave that order unknown.
use strict;
use warnings;

my (@times, @keys);
while (my $line = <STDIN>) {
    next unless $line =~ /^([^,]*),([^,\s]*)/;
    my ($pts, $flags) = ($1, $2);
    exit 1 if $pts eq 'N/A';
    next if $flags =~ /D/;    # to be decoded, not to be shown
    push @times, $pts;
    push @keys, $pts if $flags =~ /K/;
}
my %place;
my $next = 0;
$place{$_} //= $next++ for sort { $a <=> $b } @times;
print "$place{$_}\n" for sort { $a <=> $b } @keys;
