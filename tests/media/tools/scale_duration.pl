# Usage: scale_duration.pl IN OUT FACTOR
# Copies an MP4, Matroska or AVI file whose headers state FACTOR times the true length.
use strict;
use warnings;

my ($from, $to, $factor) = @ARGV;
open my $in, '<:raw', $from or die "$from: $!\n";
my $data = do { local $/; <$in> };
close $in;

# scale FORMAT AT: the number at a place in the file; FORMAT is that of pack.
my $scaled = 0;
sub scale {
    my ($format, $at) = @_;
    my $length = length pack $format, 0;
    my $value = unpack $format, substr $data, $at, $length;
    substr $data, $at, $length, pack $format, $value * $factor;
    $scaled++;
}

if (substr($data, 0, 4) eq 'RIFF') {
    scale('V', index($data, 'avih') + 8 + 16);    # dwTotalFrames
    for (my $at = 0; ($at = index $data, 'strh', $at) >= 0; $at++) {
        scale('V', $at + 8 + 32);                  # dwLength
    }
} elsif (substr($data, 0, 4) eq "\x1a\x45\xdf\xa3") {
    my $at = index $data, "\x44\x89\x88";
    die "$from states no duration\n" if $at < 0;
    scale('d>', $at + 3);
} elsif (substr($data, 4, 4) eq 'ftyp') {
    # Boxes of version 0: behind name and flags stand two times, a unit or a number of the track,
    # and the duration.
    my %behind = (mvhd => 4 + 4 + 12, tkhd => 4 + 4 + 16, mdhd => 4 + 4 + 12);
    my $header = rindex $data, 'moov';
    for my $box (sort keys %behind) {
        for (my $at = $header; ($at = index $data, $box, $at) >= 0; $at++) {
            die "$box of an unknown version\n" if unpack('C', substr $data, $at + 4, 1) != 0;
            scale('N', $at + $behind{$box});
        }
    }
}
die "$from states no duration\n" unless $scaled;

open my $out, '>:raw', $to or die "$to: $!\n";
print $out $data;
close $out or die "$to: $!\n";
