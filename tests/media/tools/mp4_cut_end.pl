# mp4_cut_end.pl IN OUT MS: copies an MP4 whose first track's edit list consists of one entry, and
# shortens that to MS milliseconds, as programs trim a video without writing its pictures anew.
use strict;
use warnings;

my ($source, $target, $ms) = @ARGV;
open my $in, '<:raw', $source or die "$source: $!\n";
my $data = do { local $/; <$in> };
close $in;

my $header = index $data, 'mvhd';
my $track = index $data, 'tkhd';
my $edits = index $data, 'elst';
die "$source has no edit list\n" if $header < 0 || $edits < 0;
die "$source has another edit list\n" if unpack('N', substr $data, $edits + 8, 4) != 1;
for my $box ($header, $track, $edits) {
    die "$source has 64-bit times\n" if ord substr $data, $box + 4, 1;
}
# The lengths of the movie, the track and the entry are in the units of the movie.
my $scale = unpack 'N', substr $data, $header + 16, 4;
for my $length ($header + 20, $track + 24, $edits + 12) {
    substr $data, $length, 4, pack 'N', $ms * $scale / 1000;
}

open my $out, '>:raw', $target or die "$target: $!\n";
print $out $data;
close $out or die "$target: $!\n";
